import QtQuick
import KelDS
import Quillet.Views

Column {
    id: view

    required property var header

    LabelView {
        width: parent.width
        bottomPadding: KelSpacing.small
        label: view.header.cycleLabel
        Accessible.role: Accessible.Heading
    }
    Flow {
        width: parent.width
        visible: view.header.cycleLabel !== null
        spacing: KelSpacing.semi
        bottomPadding: KelSpacing.small

        Repeater {
            model: [
                { icon: KelIcons.Calendar, text: view.header.cycleStart },
                { icon: KelIcons.Schedule, text: view.header.cycleEnd }
            ]

            Row {
                id: date

                required property var modelData

                spacing: KelSpacing.tiny

                KelIcon {
                    number: date.modelData.icon
                }
                KelLabel {
                    text: date.modelData.text
                    size: 7
                }
            }
        }
    }
    LabelView {
        width: parent.width
        label: view.header.pointsInProgressLabel
    }
}
