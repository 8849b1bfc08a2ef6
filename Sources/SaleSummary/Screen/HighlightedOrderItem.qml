import QtQuick
import KelDS
import Quillet

KelCard {
    id: card

    required property HighlightedOrderView order

    Column {
        width: parent.width

        Item {
            width: parent.width
            height: Math.max(KelSizes.medium, title.implicitHeight + KelSpacing.small)

            KelLabel {
                id: title

                anchors.left: parent.left
                anchors.right: tag.left
                anchors.rightMargin: KelSpacing.tiny
                height: parent.height - KelSpacing.small
                text: card.order.orderSummaryLabel
                size: KelFonts.Headline6
                weight: KelFonts.Medium
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
            }
            KelTag {
                id: tag

                anchors.right: parent.right
                y: (parent.height - KelSpacing.small - height) / 2
                tagColor: card.order.orderStatusTag
            }
        }
        KelDivider {
            width: parent.width
        }
        Item {
            id: origin

            // Cycle and date stand side by side where there is room for both, else one below the other.
            readonly property real line: Math.max(KelSizes.semiX, cycle.contentHeight + KelSpacing.tiny)
            readonly property bool fits: cycle.implicitWidth + KelSpacing.small + date.implicitWidth <= width

            width: parent.width
            height: origin.fits ? Math.max(KelSizes.mediumX, origin.line)
                                : origin.line + Math.max(KelSizes.semiX, date.implicitHeight)

            CaptionedItem {
                id: cycle

                width: parent.width
                height: origin.fits ? parent.height : origin.line
                wrapMode: Text.Wrap
                visible: text !== ""
                captioned: card.order.orderCycleLabel
            }
            Row {
                id: date

                anchors.right: parent.right
                width: origin.fits ? implicitWidth : parent.width
                anchors.bottom: parent.bottom
                height: origin.fits ? parent.height : parent.height - origin.line
                spacing: KelSpacing.tiny

                KelIcon {
                    height: parent.height
                    number: KelIcons.Calendar
                    size: Math.round(KelSizes.small * KelFonts.scale)
                }
                KelLabel {
                    height: parent.height
                    text: card.order.orderDateLabel
                }
            }
        }
        KelDivider {
            width: parent.width
        }
        CaptionedItem {
            width: parent.width
            height: Math.max(KelSizes.mediumX, implicitHeight + KelSpacing.small)
            captioned: card.order.totalProductsLabel
            wrapMode: Text.Wrap
        }
        Rectangle {
            width: parent.width
            height: Math.max(KelSizes.mediumX, points.implicitHeight + KelSpacing.small)
            radius: KelBorderRadius.medium
            color: KelColors.tint(points.color)

            LabelItem {
                id: points

                anchors.fill: parent
                anchors.leftMargin: KelSpacing.small
                anchors.rightMargin: KelSpacing.small
                label: card.order.orderPointsLabel
            }
        }
    }
}
