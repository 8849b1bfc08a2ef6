import QtQuick
import KelDS

// A solid pill, or a capsule where it has no text. Its colour is one of KelTagColor.
Rectangle {
    id: tag

    property string text
    property int tagColor: KelTagColor.Alert

    implicitWidth: tag.text === "" ? KelSizes.semi : Math.max(KelSizes.semi, label.implicitWidth + KelSpacing.small)
    implicitHeight: tag.text === "" ? KelSizes.tiny : Math.max(KelSizes.standard, label.implicitHeight + KelSpacing.tiny)
    radius: height / 2
    color: [KelColors.primary, KelColors.success, KelColors.warning, KelColors.alert, KelColors.link][tag.tagColor]

    KelLabel {
        id: label

        anchors.centerIn: parent
        visible: text !== ""
        Accessible.ignored: text === ""
        text: tag.text
        size: KelFonts.Caption
        weight: KelFonts.Bold
        color: tag.tagColor === KelTagColor.Primary ? KelColors.inkOnPrimary : KelColors.inkOnTag
    }
}
