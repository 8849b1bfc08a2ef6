// Views and loaders of Qt 6.4 cannot create bound components, so components refer to this file's ids unqualified.
// qmllint disable unqualified

import QtQuick
import KelDS
import Quillet
import Quillet.Screens

// A result. In one column it is one list: what stands above the products is its header, what stands below them its footer,
// so that only the rows in view are ever made. Where there is room for two columns, both stand beside the list.
Item {
    id: root

    required property ProductsCheckoutStatusView status
    required property SafeArea safeArea
    // Read here, because types are not known inside the components below.
    readonly property ShippingStatusProductsView products: root.status.products
    readonly property bool isWide: root.width - root.safeArea.left - root.safeArea.right >= KelSizes.wide

    // How many products there is room for below a row. None is lower than its tile with the spacing around it.
    function roomBelow(row: Item): int {
        const room = list.contentY + list.height - row.y - KelSizes.mediumX
        return Math.ceil(Math.max(0, Math.min(room, list.height)) / (KelSizes.semiX + 2 * KelSpacing.small))
    }
    function toggle(row: Item, index: int) {
        root.products.toggle(index, root.roomBelow(row))
    }
    function tapGoToCart() {
        root.status.tapGoToCart()
    }

    // The Tab key goes through heads and button in the order in which they are seen. The list does not keep that order
    // among its items, and heads that are out of view may not have been made.
    function focusButton() {
        const footer = root.isWide ? (side.item as ResultSide).footer : (list.footerItem as ResultEnd).footer
        footer.focusButton()
    }
    function rowAt(index: int): ProductsRow {
        return list.itemAtIndex(index) as ProductsRow
    }
    function focusHead(index: int): bool {
        if (index >= 0) {
            list.positionViewAtIndex(index, ListView.Contain)
            root.rowAt(index).focusHead()
        }
        return index >= 0
    }
    function focusFirst() {
        if (root.isWide || !root.focusHead(root.products.headBelow(-1))) {
            root.focusButton()
        }
    }
    function focusLast() {
        if (!root.isWide || !root.focusHead(root.products.headAbove(list.count))) {
            root.focusButton()
        }
    }
    function tabFromHead(index: int, forward: bool) {
        const next = forward ? root.products.headBelow(index) : root.products.headAbove(index)
        if (!root.focusHead(next)) {
            forward === root.isWide ? root.leave(forward) : root.focusButton()
        }
    }
    function tabFromButton(forward: bool) {
        const next = forward ? root.products.headBelow(-1) : root.products.headAbove(list.count)
        if (forward !== root.isWide || !root.focusHead(next)) {
            root.leave(forward)
        }
    }
    function leave(forward: bool) {
        const edge = forward ? end : start
        edge.nextItemInFocusChain(forward).forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
    }

    readonly property real textScale: KelFonts.scale

    // A header that grows under a list at its beginning pushes it away from there. How far is known with the next frames.
    onTextScaleChanged: if (list.contentY < list.originY + KelSizes.micro) backToBeginning.restart()
    Keys.forwardTo: [keys]

    Timer {
        id: backToBeginning

        interval: KelMotion.press
        onTriggered: list.positionViewAtBeginning()
    }

    // Where the keys come into the page.
    Item {
        id: start

        activeFocusOnTab: true
        onActiveFocusChanged: if (activeFocus) root.focusFirst()
    }
    Loader {
        id: side

        anchors.left: parent.left
        width: root.isWide ? Math.round(0.4 * root.width) : 0
        height: root.height
        active: root.isWide
        sourceComponent: beside
    }
    ListView {
        id: list

        readonly property SafeArea safeArea: SafeArea {
            item: root.safeArea.item
            inner: !root.isWide ? 0 : root.LayoutMirroring.enabled ? Qt.RightEdge : Qt.LeftEdge
        }

        objectName: "result"
        anchors.left: side.right
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: root.safeArea.top
        anchors.bottom: parent.bottom
        clip: root.safeArea.top > 0
        Accessible.role: Accessible.List
        Accessible.name: root.status.headerView.mainMessage
        AccessibleState.announcement: root.status.headerView.mainMessage
        boundsBehavior: Flickable.StopAtBounds
        // No row is the current one: it would be kept when it is out of view, and arrow keys would go to rows, which have
        // nothing to do. They scroll instead.
        currentIndex: -1
        keyNavigationEnabled: false
        // Rows that are being made ahead of time must not be taken away meanwhile, as closing a section does.
        cacheBuffer: 0
        reuseItems: true
        model: root.products
        delegate: ProductsRow {
            id: row

            width: ListView.view.width
            safeArea: list.safeArea
            products: root.products
            onHeadTapped: root.toggle(row, row.index)
            onHeadFocused: list.positionViewAtIndex(row.index, ListView.Contain)
            onTabbed: forward => root.tabFromHead(row.index, forward)
            // The list does not draw a row that it keeps for later use, but leaves it where it was, also for assistive
            // programs.
            ListView.onPooled: row.visible = false
            ListView.onReused: row.visible = true
        }
        // A header that is made before its width is known grows when it is laid out, and the list would begin in the
        // middle of it.
        header: list.width <= 0 ? null : root.isWide ? gap : above
        footer: root.isWide ? gap : below
        // Unlike positionViewAtBeginning() this works before the list is complete, too.
        onHeaderItemChanged: list.contentY = list.originY
    }
    Item {
        id: end

        activeFocusOnTab: true
        onActiveFocusChanged: if (activeFocus) root.focusLast()
    }
    ScrollKeys {
        id: keys

        page: list
    }
    Component {
        id: above

        ProductsHeaderItem {
            width: ListView.view.width
            status: root.status
            safeArea: root.safeArea
        }
    }
    Component {
        id: below

        ResultEnd {
            width: ListView.view.width
            status: root.status
            safeArea: root.safeArea
            room: list.height
            above: y - list.originY
            onTapped: root.tapGoToCart()
            onTabbed: forward => root.tabFromButton(forward)
            onButtonFocused: list.positionViewAtEnd()
        }
    }
    Component {
        id: gap

        Item {
            height: KelSpacing.semi + root.safeArea.bottom
        }
    }
    Component {
        id: beside

        ResultSide {
            status: root.status
            safeArea: root.safeArea
            onTapped: root.tapGoToCart()
            onTabbed: forward => root.tabFromButton(forward)
        }
    }
}
