import QtQuick
import KelDS
import Quillet

// One product: tile, quantity badge, name over code, points; a product that was not sent carries its tag below.
Item {
    id: item

    required property productRow product
    required property bool first

    // Numbers of twenty digits leave no room for the texts between them: points and texts then go below the badge.
    readonly property bool crowded: badge.width + pointsLabel.implicitWidth > item.width / 2

    // A screen reader says the row as one, not as four loose texts.
    Accessible.role: Accessible.ListItem
    Accessible.name: item.product.spoken
    implicitHeight: Math.max(tile.y + tile.height, texts.y + texts.height) + KelSpacing.small

    KelDivider {
        x: item.first ? KelSpacing.small : badge.x
        width: parent.width - x - KelSpacing.small
    }
    Rectangle {
        id: tile

        x: KelSpacing.small
        y: KelSpacing.small + 1
        width: KelSizes.semiX
        height: KelSizes.semiX
        radius: KelBorderRadius.medium
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
        radius: KelBorderRadius.small
        color: KelColors.primary

        KelLabel {
            id: quantityLabel

            anchors.centerIn: parent
            text: item.product.quantity
            Accessible.ignored: true
            size: KelFonts.Caption
            weight: KelFonts.Bold
            // On amber, text is dark in either theme.
            color: KelColors.inkOnPrimary
        }
    }
    Column {
        id: texts

        x: item.crowded ? badge.x : badge.x + badge.width + 12
        y: item.crowded ? pointsLabel.y + pointsLabel.height + KelSpacing.micro : tile.y
        width: (item.crowded ? item.width - KelSpacing.small : pointsLabel.x - 12) - x
        spacing: KelSpacing.micro

        KelLabel {
            width: parent.width
            visible: item.product.description !== ""
            text: item.product.description
            Accessible.ignored: true
            size: KelFonts.Subtitle2
            lineHeight: 1.2
            wrapMode: Text.Wrap
        }
        KelLabel {
            width: parent.width
            text: item.product.code
            Accessible.ignored: true
            size: KelFonts.Caption
            color: KelColors.mediumEmphasis
            wrapMode: Text.Wrap
        }
        Item {
            width: 1
            height: tag.height + KelSpacing.tiny
            visible: item.product.hasReason

            KelTag {
                id: tag

                y: 6
                text: item.product.reasonTag
            }
        }
    }
    KelLabel {
        id: pointsLabel

        x: item.crowded ? badge.x : parent.width - KelSpacing.small - width
        y: item.crowded ? badge.y + badge.height + KelSpacing.micro : tile.y
        width: item.crowded ? parent.width - KelSpacing.small - x : implicitWidth
        text: item.product.points
        Accessible.ignored: true
        size: KelFonts.Subtitle2
        // As the description's, so that both begin on one line.
        lineHeight: 1.2
        weight: KelFonts.Medium
        color: KelColors.success
        wrapMode: Text.Wrap
        horizontalAlignment: item.crowded ? Text.AlignLeft : Text.AlignRight
    }
}
