import QtQuick
import KelDS

// Focus indicator: a ring around the control that has the keyboard focus.
Rectangle {
    property int gap: 3
    property int cornerRadius: KelBorderRadius.button

    anchors.fill: parent
    anchors.margins: -gap - border.width
    radius: cornerRadius + gap + border.width
    color: "transparent"
    border.width: 2
    border.color: KelColors.highEmphasis
}
