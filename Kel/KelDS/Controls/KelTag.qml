import QtQuick
import KelDS

// A solid pill, or a capsule where it has no text. The colour is one of the tag colours by index: 0 primary, 1 success,
// 2 warning, 3 alert, 4 link.
Rectangle {
    id: tag

    property string text
    property int colorIndex: 3

    implicitWidth: tag.text === "" ? KelSizes.semi : Math.max(KelSizes.semi, label.implicitWidth + KelSpacing.small)
    implicitHeight: tag.text === "" ? KelSizes.tiny : KelSizes.standard
    radius: height / 2
    color: [KelColors.primary, KelColors.success, KelColors.warning, KelColors.alert, KelColors.link][tag.colorIndex]

    KelLabel {
        id: label

        anchors.centerIn: parent
        visible: text !== ""
        Accessible.ignored: text === ""
        text: tag.text
        size: 11
        weight: 2
        color: tag.colorIndex === 0 ? KelColors.inkOnPrimary : KelColors.inkOnTag
    }
}
