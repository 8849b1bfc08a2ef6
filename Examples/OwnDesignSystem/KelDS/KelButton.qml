import QtQuick
import QtQuick.Controls.Basic
import KelDS

AbstractButton {
    property bool outlined
    property bool actsOnPress
    property string identifier
    signal activated
    objectName: identifier
    implicitHeight: 40
    onClicked: activated()
    background: Rectangle {
        color: KelColors.primary
    }
    contentItem: KelLabel {
        text: parent.text
    }
}
