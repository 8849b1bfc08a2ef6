import QtQuick

Item {
    property color stroke
    property color fill
    property bool isTop
    property bool isBottom
}
