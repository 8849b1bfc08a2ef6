import QtQuick
import KelDS

// The mark of the control that the keys go to: a ring that keeps clear of the control's own edge.
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
