import QtQuick
import KelDS

Rectangle {
    id: card

    required property string title
    required property var rows
    required property Component rowDelegate

    radius: KelRadius.large
    color: KelColors.surface
    border.width: 1
    border.color: KelColors.hairline

    KelLabel {
        x: KelSpacing.small
        height: KelSizes.medium
        text: card.title
        weight: 1
    }
    KelLabel {
        anchors.right: parent.right
        anchors.rightMargin: KelSpacing.small
        height: KelSizes.medium
        text: card.rows.length
        size: 7
        color: KelColors.mediumEmphasis
    }
    KelDivider {
        y: KelSizes.medium
        width: parent.width
    }
    ListView {
        anchors.fill: parent
        anchors.topMargin: KelSizes.medium + 1
        anchors.leftMargin: KelSpacing.small
        anchors.rightMargin: KelSpacing.small
        anchors.bottomMargin: KelSpacing.tiny
        clip: true
        model: card.rows
        delegate: card.rowDelegate
        onCountChanged: positionViewAtEnd()
    }
}
