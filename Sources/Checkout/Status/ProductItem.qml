import QtQuick
import KelDS
import Quillet

// One product: tile, quantity badge, name over code, points; a product that was not sent carries its tag below.
Item {
    id: item

    required property productRow product
    required property bool first

    // Where the numbers leave no room for the words between them, points and texts go below the badge.
    readonly property real widestText: item.width - 2 * KelSpacing.small - tile.width - KelSpacing.tiny
    readonly property real roomForTexts: item.widestText - badge.width - 12 - 12 - pointsLabel.implicitWidth
    readonly property bool crowded: !Words.fit(item.product.description + " " + item.product.code, name.font, item.roomForTexts)

    // A screen reader says the row as one, not as four loose texts.
    Accessible.role: Accessible.ListItem
    Accessible.name: item.product.spoken
    implicitHeight: Math.max(tile.y + tile.height, texts.y + texts.height) + KelSpacing.small

    KelDivider {
        anchors.left: item.first ? parent.left : badge.left
        anchors.leftMargin: item.first ? KelSpacing.small : 0
        anchors.right: parent.right
        anchors.rightMargin: KelSpacing.small
    }
    Rectangle {
        id: tile

        anchors.left: parent.left
        anchors.leftMargin: KelSpacing.small
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

        anchors.left: tile.right
        anchors.leftMargin: KelSpacing.tiny
        y: tile.y
        width: Math.max(KelSizes.standard, quantityLabel.implicitWidth + 12)
        height: Math.max(KelSizes.standard, quantityLabel.implicitHeight + KelSpacing.tiny)
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
    // A Column in a row that the list uses again may stay as it was laid out for the product before.
    Item {
        id: texts

        readonly property real gap: KelSpacing.micro

        anchors.left: item.crowded ? badge.left : badge.right
        anchors.leftMargin: item.crowded ? 0 : 12
        y: item.crowded ? pointsLabel.y + pointsLabel.height + texts.gap : tile.y
        width: item.crowded ? item.widestText : item.roomForTexts
        height: code.y + code.height + (item.product.hasReason ? texts.gap + tag.height + KelSpacing.tiny : 0)

        KelLabel {
            id: name

            width: parent.width
            text: item.product.description
            Accessible.ignored: true
            size: KelFonts.Subtitle2
            lineHeight: 1.2
            wrapMode: Text.Wrap
        }
        KelLabel {
            id: code

            y: item.product.description === "" ? 0 : name.height + texts.gap
            width: parent.width
            text: item.product.code
            Accessible.ignored: true
            size: KelFonts.Caption
            color: KelColors.mediumEmphasis
            wrapMode: Text.Wrap
        }
        KelTag {
            id: tag

            y: code.y + code.height + texts.gap + 6
            visible: item.product.hasReason
            text: item.product.reasonTag
        }
    }
    KelLabel {
        id: pointsLabel

        anchors.right: parent.right
        anchors.rightMargin: KelSpacing.small
        y: item.crowded ? badge.y + badge.height + KelSpacing.micro : tile.y
        width: item.crowded ? item.widestText : implicitWidth
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
