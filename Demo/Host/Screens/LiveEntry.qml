import QtQuick
import KelDS

// Something that happened once: what, what about it, and when.
Item {
    id: entry

    required property var modelData
    required property string title
    required property string detail
    required property int icon
    required property color tone
    // Absent where the time is the detail.
    property string time
    // What tints the square that the icon stands on; transparent where the icon stands alone.
    property color ground: "transparent"
    readonly property bool tiled: entry.ground.a > 0

    width: ListView.view.width
    height: KelSizes.mediumX

    Rectangle {
        id: tile

        anchors.verticalCenter: parent.verticalCenter
        width: entry.tiled ? KelSizes.semi : KelSizes.small
        height: width
        radius: KelBorderRadius.medium
        color: entry.tiled ? KelColors.withAlpha(entry.ground, KelOpacity.low) : "transparent"

        KelIcon {
            anchors.centerIn: parent
            number: entry.icon
            color: entry.tone
        }
    }
    Column {
        id: texts

        x: tile.width + (entry.tiled ? KelSpacing.small : 12)
        anchors.verticalCenter: parent.verticalCenter
        width: time.x - x - (time.width > 0 ? KelSpacing.tiny : 0)
        spacing: KelSpacing.micro

        KelLabel {
            width: parent.width
            text: entry.title
            size: KelFonts.Subtitle2
            weight: KelFonts.Medium
            elide: Text.ElideRight
        }
        KelLabel {
            width: parent.width
            text: entry.detail
            size: KelFonts.Caption
            color: KelColors.mediumEmphasis
            elide: Text.ElideRight
        }
    }
    KelLabel {
        id: time

        anchors.right: parent.right
        height: parent.height
        text: entry.time
        size: KelFonts.Caption
        color: KelColors.mediumEmphasis
    }
    KelDivider {
        x: texts.x
        anchors.bottom: parent.bottom
        width: parent.width - x
    }
}
