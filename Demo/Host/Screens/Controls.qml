import QtQuick
import KelDS

// The design system on one sheet: every control in every state, and every token by name.
Rectangle {
    id: sheet

    readonly property int column: 640

    width: 1180
    height: 1080
    color: KelColors.background

    Column {
        x: KelSpacing.standard
        y: KelSpacing.standard
        width: sheet.column
        spacing: KelSpacing.semi + KelSpacing.tiny

        ControlsButtons {
            width: parent.width
        }
        ControlsTags {
            width: parent.width
        }
        Row {
            width: parent.width
            spacing: KelSpacing.semi

            ControlsTab {
                width: (parent.width - parent.spacing) / 2
            }
            ControlsCard {
                width: (parent.width - parent.spacing) / 2
            }
        }
        ControlsPanels {
            width: parent.width
        }
        ControlsIcons {
            width: parent.width
        }
    }
    KelDivider {
        x: KelSpacing.standard + sheet.column + KelSpacing.semi
        y: KelSpacing.standard
        width: 1
        height: parent.height - 2 * KelSpacing.standard
    }
    Column {
        x: 2 * KelSpacing.standard + sheet.column + KelSpacing.semi
        y: KelSpacing.standard
        width: parent.width - x - KelSpacing.standard
        spacing: KelSpacing.small

        ControlsType {
            width: parent.width
        }
        ControlsColors {
            width: parent.width
        }
    }
}
