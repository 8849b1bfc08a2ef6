import QtQuick
import KelDS
import Quillet

// Draws a label of C++'s; one that is absent or has no text takes no room.
KelLabel {
    id: item

    required property Label label

    visible: item.text !== ""
    text: item.label ? item.label.text.styledText : ""
    textFormat: Text.StyledText
    font: item.label ? item.label.font : KelFonts.scaled(KelFonts.Subtitle1, KelFonts.Regular, KelFonts.scale)
    color: item.label ? item.label.color : KelColors.highEmphasis
    wrapMode: Text.Wrap
    Accessible.name: item.label ? item.label.text.plainText : ""
    Accessible.ignored: !item.visible
}
