import QtQuick
import KelDS

// The head of an expansion panel: the whole of it is one target.
KelPressable {
    id: head

    required property string title
    required property color tone
    required property bool expanded

    implicitHeight: Math.max(KelSizes.mediumX, head.implicitContentHeight)
    text: head.title

    background: Rectangle {
        anchors.fill: parent
        anchors.margins: 1
        radius: KelBorderRadius.large
        color: head.down ? KelColors.tint(head.tone) : "transparent"

        KelFocusRing {
            visible: head.showsFocus
            gap: -4
            cornerRadius: KelBorderRadius.large
        }
    }
    contentItem: Item { // qmllint disable deferred-property-id
        implicitHeight: title.implicitHeight + 2 * KelSpacing.tiny

        KelLabel {
            id: title

            anchors.left: parent.left
            anchors.leftMargin: KelSpacing.small
            anchors.right: icon.left
            anchors.rightMargin: KelSpacing.tiny
            anchors.verticalCenter: parent.verticalCenter
            text: head.title
            weight: KelFonts.Bold
            color: head.tone
            wrapMode: Text.Wrap
            Accessible.ignored: true
            Accessible.name: ""
        }
        KelIcon {
            id: icon

            anchors.right: parent.right
            anchors.rightMargin: KelSpacing.small
            height: parent.height
            number: KelIcons.ExpandMore
            size: KelSizes.standard
            color: head.tone
            rotation: head.expanded ? 180 : 0

            Behavior on rotation {
                enabled: !KelMotion.reduced

                NumberAnimation {
                    duration: KelMotion.panel
                    easing.type: Easing.OutCubic
                }
            }
        }
    }
}
