import QtQuick
import KelDS
import Quillet

Column {
    id: view

    required property SaleSummaryHeaderView header

    LabelItem {
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

        DateItem {
            number: KelIcons.Calendar
            text: view.header.cycleStart
            longest: view.width
        }
        DateItem {
            number: KelIcons.Schedule
            text: view.header.cycleEnd
            longest: view.width
        }
    }
    LabelItem {
        width: parent.width
        label: view.header.pointsInProgressLabel
    }
}
