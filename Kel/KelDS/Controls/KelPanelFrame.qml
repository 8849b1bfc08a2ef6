import QtQuick
import KelDS

// One row's part of an expansion panel's outline, for panels that are drawn as rows of a list. Where the panel
// continues above or below, the frame extends beyond the row and is clipped.
Item {
    id: frame

    required property color stroke
    property color fill: "transparent"
    // Whether the slice holds the panel's upper, or lower, end.
    property bool isTop: true
    property bool isBottom: true

    clip: !frame.isTop || !frame.isBottom

    Rectangle {
        y: frame.isTop ? 0 : -KelBorderRadius.large
        width: parent.width
        height: parent.height - y + (frame.isBottom ? 0 : KelBorderRadius.large)
        radius: KelBorderRadius.large
        color: frame.fill
        border.width: 1
        border.color: frame.stroke
    }
}
