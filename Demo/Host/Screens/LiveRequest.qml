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
        size: KelFonts.Caption
        color: KelColors.mediumEmphasis
    }
    KelLabel {
        x: 2 * KelSizes.medium
        height: parent.height
        text: request.modelData.method
        size: KelFonts.Caption
        weight: KelFonts.Bold
    }
    KelLabel {
        x: 2 * KelSizes.medium + KelSizes.mediumX
        width: tag.x - x - KelSpacing.tiny
        height: parent.height
        text: request.modelData.path
        size: KelFonts.Caption
        elide: Text.ElideMiddle
    }
    KelTag {
        id: tag

        anchors.right: duration.left
        anchors.verticalCenter: parent.verticalCenter
        text: request.modelData.pending ? "…"
            : request.modelData.status > 0 ? request.modelData.status : request.modelData.error
        tagColor: request.modelData.pending ? KelTagColor.Link
                : request.modelData.status >= 200 && request.modelData.status < 300 ? KelTagColor.Success : KelTagColor.Alert
    }
    KelLabel {
        id: duration

        anchors.right: parent.right
        width: 2 * KelSizes.semiX
        height: parent.height
        text: request.modelData.pending ? "" : request.modelData.milliseconds + " ms"
        size: KelFonts.Caption
        color: KelColors.mediumEmphasis
        horizontalAlignment: Text.AlignRight
    }
}
