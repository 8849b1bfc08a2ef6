import QtQuick
import QtQuick.Controls.Basic

// A page that waits, as anybody would write it.
Rectangle {
    property real indicatorSize: 0

    BusyIndicator {
        anchors.centerIn: parent
        width: parent.indicatorSize
        height: parent.indicatorSize
        padding: 0
    }
}
