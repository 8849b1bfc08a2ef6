import QtQuick
import KelDS
import Quillet

// The end of a page: the reminder and the one amber button.
Rectangle {
    id: footer

    required property rememberLabel rememberLabel
    required property button button

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

        RememberLabelItem {
            width: parent.width
            label: footer.rememberLabel
        }
        KelButton {
            id: submit

            width: parent.width
            text: footer.button.title
            identifier: footer.button.identifier
            outlined: footer.button.outlined
            onActivated: if (!Covers.over(submit)) footer.tapped()
            onVisualFocusChanged: if (visualFocus) footer.buttonFocused()
        }
    }
}
