import QtQuick
import KelDS

KelCard {
    id: card

    required property var summary

    Column {
        width: parent.width

        Item {
            width: parent.width
            height: KelSizes.medium

            KelLabel {
                height: parent.height - KelSpacing.small
                text: card.summary.orderTitle
                size: 5
                weight: 1
            }
            KelTag {
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
            height: KelSizes.mediumX

            KelValueLabel {
                height: parent.height
                visible: card.summary.orderCycle.present
                caption: card.summary.orderCycle.caption
                value: card.summary.orderCycle.value
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
                    text: card.summary.orderDate
                }
            }
        }
        KelDivider {
            width: parent.width
        }
        KelValueLabel {
            width: parent.width
            height: Math.max(KelSizes.mediumX, implicitHeight + KelSpacing.small)
            caption: card.summary.totalOfProducts.caption
            value: card.summary.totalOfProducts.value
            wrapMode: Text.Wrap
        }
        Rectangle {
            width: parent.width
            height: Math.max(KelSizes.mediumX, orderPoints.implicitHeight + KelSpacing.small)
            radius: KelRadius.medium
            color: KelColors.tint(KelColors.success)

            KelValueLabel {
                id: orderPoints

                x: KelSpacing.small
                width: parent.width - 2 * KelSpacing.small
                height: parent.height
                wrapMode: Text.Wrap
                caption: card.summary.orderPoints.caption
                value: card.summary.orderPoints.value
                size: 6
                weight: 1
                color: KelColors.success
            }
        }
    }
}
