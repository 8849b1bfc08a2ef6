import QtQuick
import KelDS

Text {
    property int size: KelFonts.Subtitle1
    property int weight: KelFonts.Regular
    font: KelFonts.scaled(size, weight, KelFonts.scale)
    textFormat: Text.PlainText
}
