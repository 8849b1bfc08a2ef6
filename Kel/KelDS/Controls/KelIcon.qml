import QtQuick
import KelDS

// A glyph of the icon font in a square box. Screen readers ignore it, because the text beside it says the same.
Text {
    id: icon

    required property int number
    property int size: KelSizes.small

    width: icon.size
    height: icon.size
    text: KelIcons.glyph(icon.number)
    font.family: KelIcons.family
    font.pixelSize: icon.size
    color: KelColors.mediumEmphasis
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    Accessible.ignored: true
}
