import QtQuick
import KelDS
import Demo

// Where a person chooses the size of the phone-sized area while Live is not shown.
Ground {
    id: strip

    required property PhoneArea area

    KelDivider {
        width: parent.width
    }
    SizePicker {
        id: picker

        x: KelSpacing.small
        anchors.verticalCenter: parent.verticalCenter
        area: strip.area
        opensUpwards: true
    }
    KelLabel {
        anchors.left: picker.right
        anchors.right: parent.right
        anchors.leftMargin: KelSpacing.small
        anchors.rightMargin: KelSpacing.small
        height: parent.height
        text: "or drag the window"
        size: KelFonts.Caption
        color: KelColors.mediumEmphasis
        horizontalAlignment: Text.AlignRight
        elide: Text.ElideRight
    }
}
