import QtQuick
import KelDS

// One product: tile, quantity badge, name over code, points; a product that was not sent carries its tag below.
Item {
    id: product

    required property string quantity
    required property string description
    required property string code
    required property string points
    required property bool hasReason
    required property bool first

    implicitHeight: Math.max(tile.y + tile.height, texts.y + texts.height) + KelSpacing.small

    KelDivider {
        x: product.first ? KelSpacing.small : badge.x
        width: parent.width - x - KelSpacing.small
    }
    Rectangle {
        id: tile

        x: KelSpacing.small
        y: KelSpacing.small + 1
        width: KelSizes.semiX
        height: KelSizes.semiX
        radius: KelRadius.medium
        color: KelColors.tint(KelColors.mediumEmphasis)

        KelIcon {
            anchors.centerIn: parent
            number: KelIcons.LocalMall
            size: KelSizes.standard
        }
    }
    Rectangle {
        id: badge

        x: tile.x + tile.width + KelSpacing.tiny
        y: tile.y
        width: Math.max(KelSizes.standard, quantityLabel.implicitWidth + KelSpacing.tiny)
        height: KelSizes.standard
        radius: KelRadius.small
        color: KelColors.primary

        KelLabel {
            id: quantityLabel

            anchors.centerIn: parent
            text: product.quantity
            size: 11
            weight: 2
            color: KelColors.inkOnPrimary
        }
    }
    Column {
        id: texts

        x: badge.x + badge.width + 12
        y: tile.y
        width: pointsLabel.x - x - 12
        spacing: KelSpacing.micro

        KelLabel {
            width: parent.width
            text: product.description
            size: 7
            lineHeight: 1.2
            wrapMode: Text.Wrap
        }
        KelLabel {
            width: parent.width
            text: product.code
            size: 11
            color: KelColors.mediumEmphasis
            wrapMode: Text.Wrap
        }
        Item {
            width: 1
            height: tag.height + 2
            visible: product.hasReason

            KelTag {
                id: tag

                y: 2
            }
        }
    }
    KelLabel {
        id: pointsLabel

        anchors.right: parent.right
        anchors.rightMargin: KelSpacing.small
        y: tile.y
        width: Math.min(implicitWidth, product.width / 3)
        text: product.points
        size: 7
        weight: 1
        color: KelColors.success
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignRight
    }
}
