import QtQuick
import KelDS
import Demo

// Whose order the journal is about; at the right the size of the screen beside it, and where its requests go.
Item {
    id: header

    required property var status
    required property PhoneArea area

    implicitHeight: KelSizes.semiX

    Column {
        anchors.verticalCenter: parent.verticalCenter
        width: tags.x - KelSpacing.small
        spacing: KelSpacing.micro

        KelLabel {
            text: "Live"
            size: KelFonts.Headline6
            weight: KelFonts.Medium
        }
        KelLabel {
            width: parent.width
            visible: text !== ""
            text: header.status.order
            size: KelFonts.Caption
            color: KelColors.mediumEmphasis
            elide: Text.ElideRight
        }
    }
    Row {
        id: tags

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: KelSpacing.tiny

        SizePicker {
            anchors.verticalCenter: parent.verticalCenter
            area: header.area
        }
        KelTag {
            anchors.verticalCenter: parent.verticalCenter
            text: header.status.environment
            tagColor: KelTagColor.Link
        }
        KelTag {
            anchors.verticalCenter: parent.verticalCenter
            text: header.status.gateway
            tagColor: header.status.gatewayColor
        }
    }
}
