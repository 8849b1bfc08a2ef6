import QtQuick
import KelDS
import Quillet.Screens

// The column of a page: no wider than is good to read, and off the edges that the device takes.
Column {
    id: column

    required property SafeArea safeArea
    readonly property real room: parent.width - column.safeArea.left - column.safeArea.right

    // The insets are those of the device, whichever way a page is mirrored.
    x: Math.round(column.safeArea.left + (column.room - column.width) / 2)
    width: Math.min(KelSizes.column, column.room - 2 * KelSpacing.small)
}
