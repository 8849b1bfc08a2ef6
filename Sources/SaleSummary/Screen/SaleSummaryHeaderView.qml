import QtQuick
import KelDS

Column {
    id: header

    required property var summary

    topPadding: KelSpacing.semi
    bottomPadding: KelSpacing.semi

    KelLabel {
        width: parent.width
        visible: header.summary.cycle.present
        bottomPadding: 12
        text: header.summary.cycle.caption + header.summary.cycle.value
        size: 4
        weight: 2
    }
    Flow {
        width: parent.width
        visible: header.summary.cycle.present
        spacing: KelSpacing.semi
        bottomPadding: KelSpacing.small

        Repeater {
            model: [
                { icon: KelIcons.Calendar, text: header.summary.cycleStart },
                { icon: KelIcons.Schedule, text: header.summary.cycleEnd }
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
    KelValueLabel {
        width: parent.width
        caption: header.summary.pointsInProgress.caption
        value: header.summary.pointsInProgress.value
        size: 5
        weight: 1
        color: KelColors.success
        wrapMode: Text.Wrap
    }
}
