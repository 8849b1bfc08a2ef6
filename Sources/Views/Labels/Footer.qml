import QtQuick
import KelDS
import Quillet
import Quillet.Screens

// The end of a page: the reminder and the one amber button.
Rectangle {
    id: footer

    required property rememberLabel rememberLabel
    required property button button
    required property SafeArea safeArea
    // Whether it stands out from what is above it.
    property bool raised: true

    // Whether the page itself takes the keys on from the button.
    property bool handsTabsOn: false

    signal tapped
    // The keys are to go on from the button, or back.
    signal tabbed(forward: bool)
    // The keys go to the button now.
    signal buttonFocused

    function focusButton() {
        submit.forceActiveFocus(Qt.TabFocusReason)
    }

    implicitHeight: column.height
    color: footer.raised ? KelColors.surface : "transparent"

    KelDivider {
        width: parent.width
        visible: footer.raised
    }
    PageColumn {
        id: column

        safeArea: footer.safeArea
        topPadding: KelSpacing.small
        bottomPadding: KelSpacing.semi + footer.safeArea.bottom
        spacing: KelSpacing.small

        RememberLabelItem {
            width: parent.width
            label: footer.rememberLabel
        }
        KelButton {
            id: submit

            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(KelSizes.dialog, parent.width)
            text: footer.button.title
            identifier: footer.button.identifier
            outlined: footer.button.outlined
            Keys.onTabPressed: event => {
                event.accepted = footer.handsTabsOn
                footer.tabbed(true)
            }
            Keys.onBacktabPressed: event => {
                event.accepted = footer.handsTabsOn
                footer.tabbed(false)
            }
            onActivated: if (!Covers.over(submit)) footer.tapped()
            onVisualFocusChanged: if (visualFocus) footer.buttonFocused()
        }
    }
}
