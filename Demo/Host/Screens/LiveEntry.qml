import QtQuick
import KelDS

Item {
    id: entry

    required property var modelData
    required property string title
    required property string detail
    required property int icon
    required property color tone

    width: ListView.view.width
    height: KelSizes.mediumX

    Rectangle {
        id: tile

        anchors.verticalCenter: parent.verticalCenter
        width: KelSizes.semi
        height: KelSizes.semi
        radius: KelRadius.medium
        color: KelColors.tint(entry.tone)

        KelIcon {
            anchors.centerIn: parent
            number: entry.icon
            color: entry.tone
        }
    }
    Column {
        x: tile.width + 12
        anchors.verticalCenter: parent.verticalCenter
        width: time.x - x - KelSpacing.tiny
        spacing: 2

        KelLabel {
            width: parent.width
            text: entry.title
            size: 7
            weight: 1
            elide: Text.ElideRight
        }
        KelLabel {
            visible: text !== ""
            text: entry.detail
            size: 11
            color: KelColors.mediumEmphasis
        }
    }
    KelLabel {
        id: time

        anchors.right: parent.right
        height: parent.height
        text: entry.modelData.time
        size: 11
        color: KelColors.mediumEmphasis
    }
}
