import QtQuick
import KelDS

// The end of a page: the reminder and the one amber button.
Rectangle {
    id: footer

    // The reminder and the button, of C++'s making.
    required property var rememberLabel
    required property var button

    signal tapped
    // The keys go to the button now.
    signal buttonFocused

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
            label: footer.rememberLabel
        }
        KelButton {
            width: parent.width
            text: footer.button.title
            identifier: footer.button.identifier
            outlined: footer.button.outlined
            onActivated: footer.tapped()
            onVisualFocusChanged: if (visualFocus) footer.buttonFocused()
        }
    }
}
