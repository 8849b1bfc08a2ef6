import QtQuick
import KelDS

Rectangle {
    default property alias content: body.data
    property int padding: KelSpacing.small
    property int bottomPadding: padding
    property bool elevated
    implicitHeight: body.childrenRect.height + padding + bottomPadding
    Item {
        id: body
        anchors.fill: parent
        anchors.margins: parent.padding
    }
}
