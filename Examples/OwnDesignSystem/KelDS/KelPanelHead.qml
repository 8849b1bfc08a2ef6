import QtQuick
import KelDS

KelButton {
    property string title
    property color tone
    property bool expanded
    text: title
}
