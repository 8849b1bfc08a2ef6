import QtQuick
import KelDS

// A text in one of the design system's fonts. What the back end wrote is never read as mark-up.
Text {
    id: label

    property int size: KelFonts.Subtitle1
    property int weight: KelFonts.Regular

    font: KelFonts.font(label.size, label.weight)
    color: KelColors.highEmphasis
    textFormat: Text.PlainText
    verticalAlignment: Text.AlignVCenter
    Accessible.role: Accessible.StaticText
    Accessible.name: label.text
}
