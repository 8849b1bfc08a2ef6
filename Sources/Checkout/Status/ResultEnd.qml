import QtQuick
import KelDS
import Quillet
import Quillet.Screens

// What stands below the products of a result in one column.
Item {
    id: end

    required property ProductsCheckoutStatusView status
    required property SafeArea safeArea
    // The list's height, and how far its footer is below its beginning.
    required property real room
    required property real above
    readonly property alias footer: footer

    signal tapped
    signal tabbed(forward: bool)
    signal buttonFocused

    height: KelSpacing.small + footer.height

    Footer {
        id: footer

        // Where the content is shorter than the screen the footer moves down to its bottom edge.
        y: KelSpacing.small + Math.max(0, end.room - end.above - end.height)
        width: parent.width
        safeArea: end.safeArea
        rememberLabel: end.status.rememberLabel
        button: end.status.goToCartButton
        handsTabsOn: true
        onTapped: end.tapped()
        onTabbed: forward => end.tabbed(forward)
        onButtonFocused: end.buttonFocused()
    }
}
