import QtQuick
import KelDS
import Quillet

// Draws the reminder as C++ words it.
KelLabel {
    id: view

    required property rememberLabel label

    text: view.label.styledText
    textFormat: Text.StyledText
    font: view.label.font
    color: view.label.color
    lineHeight: 1.3
    wrapMode: Text.Wrap
    Accessible.name: view.label.plainText
}
