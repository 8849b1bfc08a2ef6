import QtQuick
import KelDS

Item {
    id: root

    required property var dialog
    // How far the dialog has come in; it goes out by its own alpha.
    property real appeared

    NumberAnimation on appeared {
        to: 1
        duration: 200
        easing.type: Easing.OutCubic
    }
    focus: true
    Component.onCompleted: root.forceActiveFocus()
    Keys.onEscapePressed: root.dialog.touchCloseIcon()

    Accessible.role: Accessible.Dialog
    Accessible.name: root.dialog.title

    Rectangle {
        id: background

        objectName: "dialogBackground"
        anchors.fill: parent
        color: KelColors.dim
        opacity: root.dialog.alpha * root.appeared

        MouseArea {
            anchors.fill: parent
            onClicked: root.dialog.touchBackground()
            onWheel: wheel => wheel.accepted = true
        }
    }
    Rectangle {
        id: card

        x: KelSpacing.small
        width: parent.width - 2 * KelSpacing.small
        height: Math.min(content.height, parent.height - 2 * KelSpacing.small)
        anchors.verticalCenter: parent.verticalCenter
        radius: KelRadius.large
        color: KelColors.surface
        scale: 0.96 + 0.04 * root.appeared
        opacity: root.dialog.alpha * root.appeared

        MouseArea {
            anchors.fill: parent
        }
        Flickable {
            anchors.fill: parent
            contentHeight: content.height
            clip: contentHeight > height
            interactive: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds

            Column {
                id: content

                x: KelSpacing.semi
                width: parent.width - 2 * KelSpacing.semi
                topPadding: KelSizes.medium
                bottomPadding: KelSpacing.semi

                KelLabel {
                    width: parent.width
                    text: root.dialog.title
                    size: 5
                    weight: 1
                    lineHeight: 1.2
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                }
                Item {
                    width: 1
                    height: icon.visible ? KelSpacing.semi : KelSpacing.small
                }
                Image {
                    id: icon

                    anchors.horizontalCenter: parent.horizontalCenter
                    visible: root.dialog.icon.toString() !== ""
                    width: 2 * KelSizes.semiX
                    height: 2 * KelSizes.semiX
                    sourceSize.width: width
                    sourceSize.height: height
                    source: root.dialog.icon
                }
                Item {
                    width: 1
                    height: icon.visible ? KelSpacing.semi : 0
                }
                KelLabel {
                    width: parent.width
                    text: root.dialog.message
                    size: 6
                    lineHeight: 1.3
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                }
                Item {
                    width: 1
                    height: KelSpacing.semi
                }
                KelButton {
                    width: parent.width
                    outlined: true
                    text: root.dialog.actionText
                    // The dialog answers to the press itself, so that dragging away does not take the answer back.
                    actsOnPress: true
                    onActivated: root.dialog.touchButton()
                }
            }
        }
        KelIcon {
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.margins: KelSpacing.tiny
            width: KelSizes.semiX
            height: KelSizes.semiX
            number: KelIcons.Close
            size: KelSizes.standard

            MouseArea {
                objectName: "dialogCloseIcon"
                anchors.fill: parent
                anchors.margins: -2
                onClicked: root.dialog.touchCloseIcon()
            }
        }
    }
}
