import QtQuick

Rectangle {
    property int number
    property int size: 16
    width: size
    height: size
}
