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
        height: Math.max(root.height, content.height + KelSpacing.semi + footer.height)

        Column {
            id: content

            width: parent.width

            KelTab {
                width: parent.width
                text: root.summary.tabTitle
            }
            SaleSummaryHeaderView {
                x: KelSpacing.small
                width: parent.width - 2 * KelSpacing.small
                summary: root.summary
            }
            HighlightedOrderView {
                x: KelSpacing.small
                width: parent.width - 2 * KelSpacing.small
                summary: root.summary
            }
        }
        Footer {
            id: footer

            width: parent.width
            anchors.bottom: parent.bottom
            remember: root.summary.remember
            reminder: root.summary.reminder
            buttonText: root.summary.sendProducts
            buttonIdentifier: root.summary.sendProductsIdentifier
            onTapped: root.summary.tapSendProducts()
        }
    }
}
