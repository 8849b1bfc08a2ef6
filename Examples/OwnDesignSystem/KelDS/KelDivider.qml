import QtQuick

Rectangle {
    implicitHeight: 1
}
