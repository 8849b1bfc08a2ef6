import QtQuick
import KelDS

// An icon and a day.
Row {
    id: date

    required property int number
    required property string text
    // How wide it may be.
    required property real longest

    spacing: KelSpacing.tiny

    KelIcon {
        id: icon

        anchors.verticalCenter: parent.verticalCenter
        number: date.number
        size: Math.round(KelSizes.small * KelFonts.scale)
    }
    KelLabel {
        width: Math.min(implicitWidth, date.longest - icon.width - date.spacing)
        text: date.text
        wrapMode: Text.Wrap
        size: KelFonts.Subtitle2
    }
}
