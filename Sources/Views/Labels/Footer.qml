import QtQuick
import KelDS

// The end of a page: the reminder and the one amber button.
Rectangle {
    id: footer

    required property string remember
    required property string reminder
    required property string buttonText
    property string buttonIdentifier

    signal tapped

    implicitHeight: column.height
    color: KelColors.surface

    KelDivider {
        width: parent.width
    }
    Column {
        id: column

        x: KelSpacing.small
        width: parent.width - 2 * KelSpacing.small
        topPadding: KelSpacing.small
        bottomPadding: KelSpacing.semi
        spacing: KelSpacing.small

        RememberLabel {
            width: parent.width
            remember: footer.remember
            reminder: footer.reminder
        }
        KelButton {
            width: parent.width
            text: footer.buttonText
            identifier: footer.buttonIdentifier
            onActivated: footer.tapped()
        }
    }
}
