import QtQuick
import KelDS

// A text in one of the design system's fonts. What the back end wrote is never read as mark-up.
Text {
    id: label

    property int size: KelFonts.Subtitle1
    property int weight: KelFonts.Regular

    font: KelFonts.scaled(label.size, label.weight, KelFonts.scale)
    color: KelColors.highEmphasis
    textFormat: Text.PlainText
    // Said, so that mirroring turns it round whatever the text is written in.
    horizontalAlignment: Text.AlignLeft
    verticalAlignment: Text.AlignVCenter
    Accessible.role: Accessible.StaticText
    Accessible.name: label.text
}
