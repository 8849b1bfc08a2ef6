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
    required property string reasonTag
    required property bool first

    // Numbers of twenty digits leave no room for the texts between them: points and texts then go below the badge.
    readonly property bool crowded: badge.width + pointsLabel.implicitWidth > product.width / 2

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
        width: Math.max(KelSizes.standard, quantityLabel.implicitWidth + 12)
        height: KelSizes.standard
        radius: KelRadius.small
        color: KelColors.primary

        KelLabel {
            id: quantityLabel

            anchors.centerIn: parent
            text: product.quantity
            size: 11
            weight: 2
            // On amber, text is dark in either theme.
            color: KelColors.inkOnPrimary
        }
    }
    Column {
        id: texts

        x: product.crowded ? badge.x : badge.x + badge.width + 12
        y: product.crowded ? pointsLabel.y + pointsLabel.height + KelSpacing.micro : tile.y
        width: (product.crowded ? product.width - KelSpacing.small : pointsLabel.x - 12) - x
        spacing: KelSpacing.micro

        KelLabel {
            width: parent.width
            visible: product.description !== ""
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
            height: tag.height + KelSpacing.tiny
            visible: product.hasReason

            KelTag {
                id: tag

                y: 6
                text: product.reasonTag
            }
        }
    }
    KelLabel {
        id: pointsLabel

        x: product.crowded ? badge.x : parent.width - KelSpacing.small - width
        y: product.crowded ? badge.y + badge.height + KelSpacing.micro : tile.y
        width: product.crowded ? parent.width - KelSpacing.small - x : implicitWidth
        text: product.points
        size: 7
        // As the description's, so that both begin on one line.
        lineHeight: 1.2
        weight: 1
        color: KelColors.success
        wrapMode: Text.Wrap
        horizontalAlignment: product.crowded ? Text.AlignLeft : Text.AlignRight
    }
}
