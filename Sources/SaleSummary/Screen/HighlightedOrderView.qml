import QtQuick
import KelDS
import Quillet.Views

KelCard {
    id: card

    required property var order
    required property int rowHeight

    Column {
        width: parent.width

        Item {
            width: parent.width
            height: Math.max(KelSizes.medium, title.implicitHeight + KelSpacing.small)

            KelLabel {
                id: title

                width: tag.x - KelSpacing.tiny
                height: parent.height - KelSpacing.small
                text: card.order.orderSummary
                size: 5
                weight: 1
                wrapMode: Text.Wrap
            }
            KelTag {
                id: tag

                anchors.right: parent.right
                y: (parent.height - KelSpacing.small - height) / 2
                colorIndex: 0
            }
        }
        KelDivider {
            width: parent.width
        }
        Item {
            width: parent.width
            height: card.rowHeight

            KelValueLabel {
                height: parent.height
                visible: card.order.orderCycle.present
                caption: card.order.orderCycle.caption
                value: card.order.orderCycle.value
            }
            Row {
                anchors.right: parent.right
                height: parent.height
                spacing: KelSpacing.tiny

                KelIcon {
                    height: parent.height
                    number: KelIcons.Calendar
                }
                KelLabel {
                    height: parent.height
                    text: card.order.orderDate
                }
            }
        }
        KelDivider {
            width: parent.width
        }
        KelValueLabel {
            width: parent.width
            height: Math.max(card.rowHeight, implicitHeight + KelSpacing.small)
            caption: card.order.totalProducts.caption
            value: card.order.totalProducts.value
            wrapMode: Text.Wrap
        }
        Rectangle {
            width: parent.width
            height: Math.max(card.rowHeight, points.implicitHeight + KelSpacing.small)
            radius: KelRadius.medium
            color: KelColors.tint(points.color)

            LabelView {
                id: points

                x: KelSpacing.small
                width: parent.width - 2 * KelSpacing.small
                height: parent.height
                label: card.order.orderPointsLabel
            }
        }
    }
}
