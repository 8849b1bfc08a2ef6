import QtQuick
import KelDS

// What a panel may hold: a tile, a quantity, texts with a tag, and a value at the right.
Item {
    id: product

    height: texts.y + texts.height + KelSpacing.small

    KelDivider {
        x: KelSpacing.small
        width: parent.width - 2 * KelSpacing.small
    }
    Rectangle {
        id: tile

        x: KelSpacing.small
        y: KelSpacing.small
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
        width: KelSizes.standard
        height: KelSizes.standard
        radius: KelBorderRadius.small
        color: KelColors.primary

        KelLabel {
            anchors.centerIn: parent
            text: "3"
            size: KelFonts.Caption
            weight: KelFonts.Bold
            color: KelColors.inkOnPrimary
        }
    }
    Column {
        id: texts

        x: badge.x + badge.width + 12
        y: tile.y
        width: points.x - x - 12
        spacing: KelSpacing.micro

        KelLabel {
            width: parent.width
            text: "Labial mate Arcilla rosada"
            size: KelFonts.Subtitle2
            lineHeight: 1.2
            wrapMode: Text.Wrap
        }
        ControlsNote {
            text: "Code: 90318"
            bottomPadding: 2
        }
        KelTag {}
    }
    KelLabel {
        id: points

        anchors.right: parent.right
        anchors.rightMargin: KelSpacing.small
        y: tile.y
        text: "18 puntos"
        size: KelFonts.Subtitle2
        weight: KelFonts.Medium
        color: KelColors.success
    }
}
