import QtQuick
import KelDS

// A modal message: a dimmed ground and a card on it. It says what was touched and leaves it to its owner to go; it goes
// by `alpha`. While it is there the keys are its own: Tab stays within it, Escape stands for the close icon.
KelCover {
    id: dialog

    property string title
    property string message
    property url icon
    // Without a text there is no button.
    property string actionText
    property real alpha: 1
    // How far the dialog has come in.
    property real appeared: 0

    signal buttonTouched
    signal backgroundTouched
    signal closeIconTouched

    function scrollBy(distance) {
        page.contentY = Math.max(0, Math.min(page.contentHeight - page.height, page.contentY + distance))
    }

    Accessible.role: Accessible.Dialog
    Accessible.name: dialog.title
    Keys.onEscapePressed: event => {
        if (!event.isAutoRepeat) {
            dialog.closeIconTouched()
        }
    }
    Keys.onUpPressed: dialog.scrollBy(-KelSizes.large)
    Keys.onDownPressed: dialog.scrollBy(KelSizes.large)
    Keys.onBackPressed: dialog.closeIconTouched()
    Component.onCompleted: entrance.start()

    NumberAnimation {
        id: entrance

        target: dialog
        property: "appeared"
        to: 1
        duration: KelMotion.dialogIn
        easing.type: Easing.OutCubic
    }
    Rectangle {
        objectName: "dialogBackground"
        anchors.fill: parent
        color: KelColors.dim
        opacity: dialog.alpha * dialog.appeared

        MouseArea {
            anchors.fill: parent
            onClicked: dialog.backgroundTouched()
            onWheel: wheel => wheel.accepted = true
        }
    }
    Rectangle {
        id: card

        readonly property real room: parent.height - 2 * KelSpacing.small
        readonly property real around: page.y + (button.visible ? button.height + KelSpacing.semi : 0) + KelSpacing.semi

        x: KelSpacing.small
        width: parent.width - 2 * KelSpacing.small
        height: Math.min(page.contentHeight + card.around, card.room)
        y: Math.round((parent.height - height) / 2)
        radius: KelRadius.large
        color: KelColors.surface
        scale: KelMotion.reduced ? 1 : 0.96 + 0.04 * dialog.appeared
        opacity: dialog.alpha * dialog.appeared

        MouseArea {
            anchors.fill: parent
        }
        Flickable {
            id: page

            x: KelSpacing.semi
            y: KelSizes.medium
            width: parent.width - 2 * KelSpacing.semi
            height: card.height - card.around
            contentHeight: content.height
            clip: contentHeight > height
            interactive: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds

            Column {
                id: content

                width: parent.width
                spacing: icon.visible ? KelSpacing.semi : KelSpacing.small

                KelLabel {
                    width: parent.width
                    text: dialog.title
                    size: 5
                    weight: 1
                    lineHeight: 1.2
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                }
                Image {
                    id: icon

                    anchors.horizontalCenter: parent.horizontalCenter
                    visible: status !== Image.Null
                    width: 2 * KelSizes.semiX
                    height: 2 * KelSizes.semiX
                    sourceSize.width: width
                    sourceSize.height: height
                    source: dialog.icon
                }
                KelLabel {
                    width: parent.width
                    text: dialog.message
                    lineHeight: 1.3
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                }
            }
        }
        KelScrollHint {
            page: page
        }
        KelButton {
            id: button

            x: KelSpacing.semi
            width: parent.width - 2 * KelSpacing.semi
            anchors.bottom: parent.bottom
            anchors.bottomMargin: KelSpacing.semi
            visible: dialog.actionText !== ""
            outlined: true
            text: dialog.actionText
            // The dialog answers to the press itself, so that dragging away does not take the answer back.
            actsOnPress: true
            focus: visible
            KeyNavigation.tab: close
            KeyNavigation.backtab: close
            onActivated: dialog.buttonTouched()
        }
        KelIconButton {
            id: close

            objectName: "dialogCloseIcon"
            anchors.right: parent.right
            anchors.top: parent.top
            // The glyph's box of 40 stands 8 from the corner; what can be touched reaches further.
            anchors.margins: KelSpacing.tiny - (KelSizes.touch - KelSizes.semiX) / 2
            number: KelIcons.Close
            text: KelWords.close
            focus: !button.visible
            KeyNavigation.tab: button.visible ? button : close
            KeyNavigation.backtab: button.visible ? button : close
            onActivated: dialog.closeIconTouched()
        }
    }
}
