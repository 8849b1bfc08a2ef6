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

            KelExpansionPanel {
                width: parent.width
                title: "Productos enviados"
                tone: KelColors.success
                stroke: KelColors.success
                expanded: false

                ControlsProduct {
                    width: parent.width
                }
            }
            KelExpansionPanel {
                width: parent.width
                title: "Productos no enviados"
                tone: KelColors.alert
                stroke: KelColors.alert
                expanded: false

                ControlsProduct {
                    width: parent.width
                }
            }
        }
        KelExpansionPanel {
            width: row.cell
            title: "Productos no enviados"
            tone: KelColors.alert
            stroke: KelColors.alert

            ControlsProduct {
                width: parent.width
            }
        }
    }
}
