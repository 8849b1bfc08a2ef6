import QtQuick
import KelDS

// A glyph of the icon font in a square box. It says nothing to a screen reader: the text beside it does.
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
