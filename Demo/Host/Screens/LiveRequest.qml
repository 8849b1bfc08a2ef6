import QtQuick
import KelDS

// One request and, once it has come, its answer.
Item {
    id: request

    required property var modelData
    required property int index

    width: ListView.view.width
    height: KelSizes.medium

    KelDivider {
        width: parent.width
        visible: request.index > 0
    }
    KelLabel {
        height: parent.height
        text: request.modelData.time
        size: 11
        color: KelColors.mediumEmphasis
    }
    KelLabel {
        x: 2 * KelSizes.medium
        height: parent.height
        text: request.modelData.method
        size: 11
        weight: 2
    }
    KelLabel {
        x: 2 * KelSizes.medium + KelSizes.mediumX
        width: tag.x - x - KelSpacing.tiny
        height: parent.height
        text: request.modelData.path
        size: 11
        elide: Text.ElideMiddle
    }
    KelTag {
        id: tag

        anchors.right: duration.left
        anchors.verticalCenter: parent.verticalCenter
        text: request.modelData.pending ? "…"
            : request.modelData.status > 0 ? request.modelData.status : request.modelData.error
        colorIndex: request.modelData.pending ? 4
                  : request.modelData.status >= 200 && request.modelData.status < 300 ? 1 : 3
    }
    KelLabel {
        id: duration

        anchors.right: parent.right
        width: 2 * KelSizes.semiX
        height: parent.height
        text: request.modelData.pending ? "" : request.modelData.milliseconds + " ms"
        size: 11
        color: KelColors.mediumEmphasis
        horizontalAlignment: Text.AlignRight
    }
}
