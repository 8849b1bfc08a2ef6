import QtQuick
import KelDS
import Quillet.Views
import Quillet.SaleSummary

// The summary: slack goes between the content and the footer, and the whole scrolls when it is longer than the screen.
Flickable {
    id: root

    required property var summary

    contentHeight: page.height
    boundsBehavior: Flickable.StopAtBounds

    Item {
        id: page

        width: root.width
        height: Math.max(root.height, content.height + root.summary.partSpacing + footer.height)

        Column {
            id: content

            width: parent.width

            KelTabs {
                width: parent.width
                titles: [root.summary.inProgressTab]
            }
            SaleSummaryHeaderView {
                x: root.summary.sideSpacing
                width: parent.width - 2 * root.summary.sideSpacing
                topPadding: root.summary.partSpacing
                bottomPadding: root.summary.partSpacing
                header: root.summary.headerView
            }
            HighlightedOrderView {
                x: root.summary.sideSpacing
                width: parent.width - 2 * root.summary.sideSpacing
                order: root.summary.highlightedOrderView
                rowHeight: root.summary.rowHeight
            }
        }
        Footer {
            id: footer

            width: parent.width
            anchors.bottom: parent.bottom
            rememberLabel: root.summary.rememberLabel
            button: root.summary.sendProductsButton
            onTapped: root.summary.tapSendProducts()
            onButtonFocused: root.contentY = root.contentHeight - root.height
        }
    }
}
