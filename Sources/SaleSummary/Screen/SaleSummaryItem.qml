import QtQuick
import KelDS
import Quillet
import Quillet.Screens

// The summary: slack goes between the content and the footer, and the whole scrolls when it is longer than the screen.
ScrollableView {
    id: root

    required property SaleSummaryView summary
    required property SafeArea safeArea

    anchors.topMargin: root.safeArea.top
    contentHeight: page.height
    hinted: false

    Item {
        id: page

        width: root.width
        height: Math.max(root.height, content.y + content.height + KelSpacing.semi + footer.height)

        KelTabs {
            id: tabs

            width: parent.width
            titles: [root.summary.inProgressTab]
            leftInset: content.x - KelSpacing.small
            rightInset: width - content.x - content.width - KelSpacing.small
        }
        PageColumn {
            id: content

            anchors.top: tabs.bottom
            topPadding: KelSpacing.semi
            safeArea: root.safeArea

            SaleSummaryHeaderItem {
                width: parent.width
                bottomPadding: KelSpacing.semi
                header: root.summary.headerView
            }
            HighlightedOrderItem {
                width: parent.width
                order: root.summary.highlightedOrderView
            }
        }
        Footer {
            id: footer

            width: parent.width
            anchors.bottom: parent.bottom
            safeArea: root.safeArea
            rememberLabel: root.summary.rememberLabel
            button: root.summary.sendProductsButton
            onTapped: root.summary.tapSendProducts()
            onButtonFocused: root.contentY = root.contentHeight - root.height
        }
    }
}
