import QtQuick
import KelDS

// Draws the reminder as C++ words it.
KelLabel {
    id: view

    required property var label

    text: view.label.styledText
    textFormat: Text.StyledText
    font: view.label.font
    color: view.label.color
    lineHeight: 1.3
    wrapMode: Text.Wrap
    Accessible.name: view.label.plainText
}
