import QtQuick
import KelDS
import Quillet

// Draws a caption and its value, of which only the value is bolder.
KelLabel {
    id: item

    required property captioned captioned

    text: item.captioned.styledText
    textFormat: Text.StyledText
    Accessible.name: item.captioned.plainText
}
