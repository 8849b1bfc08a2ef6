import QtQuick
import KelDS
import Quillet

// The disc of a result, with the small mark at its edge where the result has one.
Rectangle {
    id: disc

    required property IconStatusProductsView status

    width: 88
    height: 88
    radius: width / 2
    color: KelColors.tint(disc.status.tone)

    KelIcon {
        anchors.centerIn: parent
        number: disc.status.iconNumber
        size: disc.status.iconSize
        color: disc.status.iconColor
    }
    Rectangle {
        anchors.left: parent.left
        anchors.leftMargin: 64
        y: 62
        width: disc.status.markSize + KelSpacing.micro
        height: width
        radius: width / 2
        visible: disc.status.hasMark
        color: KelColors.surface

        KelIcon {
            anchors.centerIn: parent
            number: disc.status.markNumber
            size: disc.status.markSize
            color: disc.status.tone
        }
    }
}
