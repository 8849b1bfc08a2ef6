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

                width: tag.x - KelSpacing.tiny
                height: parent.height - KelSpacing.small
                text: card.order.orderSummaryLabel
                size: KelFonts.Headline6
                weight: KelFonts.Medium
                wrapMode: Text.Wrap
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
            readonly property bool fits: cycle.implicitWidth + KelSpacing.small + date.width <= width

            width: parent.width
            height: origin.fits ? KelSizes.mediumX : 2 * KelSizes.semiX

            CaptionedItem {
                id: cycle

                width: parent.width
                height: origin.fits ? parent.height : parent.height / 2
                visible: text !== ""
                captioned: card.order.orderCycleLabel
            }
            Row {
                id: date

                anchors.right: origin.fits ? parent.right : undefined
                anchors.bottom: parent.bottom
                height: cycle.height
                spacing: KelSpacing.tiny

                KelIcon {
                    height: parent.height
                    number: KelIcons.Calendar
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

                x: KelSpacing.small
                width: parent.width - 2 * KelSpacing.small
                height: parent.height
                label: card.order.orderPointsLabel
            }
        }
    }
}
