import QtQuick
import Quillet
import Quillet.Screens

// The first of a result's two columns: what it came to, and the button.
ScrollableView {
    id: side

    required property ProductsCheckoutStatusView status
    required property SafeArea safeArea
    readonly property alias footer: footer
    readonly property SafeArea ownArea: SafeArea {
        item: side.safeArea.item
        inner: side.LayoutMirroring.enabled ? Qt.LeftEdge : Qt.RightEdge
    }

    signal tapped
    signal tabbed(forward: bool)

    anchors.fill: parent
    anchors.topMargin: side.safeArea.top
    Accessible.role: Accessible.Grouping
    Accessible.name: side.status.headerView.mainMessage
    contentHeight: page.height
    hinted: false

    Item {
        id: page

        width: side.width
        height: Math.max(side.height, head.height + footer.height)

        ProductsHeaderItem {
            id: head

            width: parent.width
            status: side.status
            safeArea: side.ownArea
        }
        Footer {
            id: footer

            width: parent.width
            anchors.bottom: parent.bottom
            safeArea: side.ownArea
            rememberLabel: side.status.rememberLabel
            button: side.status.goToCartButton
            raised: false
            handsTabsOn: true
            onTapped: side.tapped()
            onTabbed: forward => side.tabbed(forward)
            onButtonFocused: side.contentY = side.contentHeight - side.height
        }
    }
}
