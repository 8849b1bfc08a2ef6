import QtQuick
import KelDS

ControlsSection {
    title: "Expansion panel"

    Row {
        id: row

        readonly property real cell: (width - spacing) / 2

        width: parent.width
        spacing: KelSpacing.semi

        Column {
            width: row.cell
            spacing: KelSpacing.small

            ControlsPanel {
                width: parent.width
                title: "Productos enviados"
                tone: KelColors.success
            }
            ControlsPanel {
                width: parent.width
                title: "Productos no enviados"
                tone: KelColors.alert
            }
        }
        ControlsPanel {
            width: row.cell
            title: "Productos no enviados"
            tone: KelColors.alert
            expanded: true
        }
    }
}
