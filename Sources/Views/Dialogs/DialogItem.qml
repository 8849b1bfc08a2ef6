import QtQuick
import KelDS
import Quillet
import Quillet.Screens

// A dimmed ground and a card on it. While the dialog is there the keys are its own: Tab stays within it, Escape stands for
// the close icon.
Cover {
    id: item

    required property Dialog dialog
    // How far the dialog has come in.
    property real appeared: 0

    function appear() {
        item.appeared = item.dialog.firstAlpha
        entrance.restart()
        // A dialog that is being made gets the keys as any cover does, which has to know what had them before.
        if (item.activeFocus) {
            button.forceActiveFocus()
        }
    }

    Accessible.role: Accessible.Dialog
    Accessible.name: item.dialog.title
    AccessibleState.modal: true
    AccessibleState.announcement: item.dialog.message
    Keys.onEscapePressed: event => {
        if (!event.isAutoRepeat) {
            item.dialog.touchCloseIcon()
        }
    }
    Keys.onBackPressed: item.dialog.touchCloseIcon()
    Keys.forwardTo: [page]
    onDialogChanged: item.appear()
    Component.onCompleted: entrance.start()

    SafeArea {
        id: safe

        item: item.parent
    }

    NumberAnimation {
        id: entrance

        target: item
        property: "appeared"
        to: 1
        duration: KelMotion.dialogIn
        easing.type: Easing.OutCubic
    }
    Rectangle {
        objectName: "dialogBackground"
        anchors.fill: parent
        color: item.dialog.backgroundColor
        opacity: item.dialog.alpha * item.appeared

        MouseArea {
            anchors.fill: parent
            onClicked: item.dialog.touchBackground()
            onWheel: wheel => wheel.accepted = true
        }
    }
    KelCard {
        id: card

        readonly property real room: parent.height - safe.top - safe.bottom - 2 * KelSpacing.small
        readonly property real breadth: parent.width - safe.left - safe.right
        // The usual distance from the sides, or less where a word would break.
        readonly property real side: Words.fit(item.dialog.title + " " + item.dialog.message, item.dialog.messageFont,
                                               card.width - 2 * KelSpacing.semi) ? KelSpacing.semi : KelSpacing.small
        readonly property real around: page.y + button.height + 2 * KelSpacing.semi

        x: Math.round(safe.left + (card.breadth - width) / 2)
        width: Math.min(KelSizes.dialog, card.breadth - 2 * KelSpacing.small)
        height: Math.min(page.contentHeight + card.around, card.room)
        y: Math.round(safe.top + (parent.height - safe.top - safe.bottom - height) / 2)
        padding: 0
        elevated: false
        // In a dark theme the card's surface alone does not tell it from the veil.
        border.width: 1
        border.color: KelColors.edge
        scale: KelMotion.reduced ? 1 : 0.96 + 0.04 * item.appeared
        opacity: item.dialog.alpha * item.appeared

        MouseArea {
            anchors.fill: parent
        }
        ScrollableView {
            id: page

            x: card.side
            y: KelSizes.medium
            width: parent.width - 2 * card.side
            height: card.height - card.around
            contentHeight: content.height

            Column {
                id: content

                width: parent.width
                spacing: icon.visible ? KelSpacing.semi : KelSpacing.small

                KelLabel {
                    width: parent.width
                    text: item.dialog.title
                    font: item.dialog.titleFont
                    color: item.dialog.textColor
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
                    source: item.dialog.icon
                }
                KelLabel {
                    width: parent.width
                    text: item.dialog.message
                    font: item.dialog.messageFont
                    color: item.dialog.textColor
                    lineHeight: 1.3
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                }
            }
        }
        KelButton {
            id: button

            x: KelSpacing.semi
            width: parent.width - 2 * KelSpacing.semi
            anchors.bottom: parent.bottom
            anchors.bottomMargin: KelSpacing.semi
            outlined: true
            text: item.dialog.actionText
            // The dialog answers to the press itself, so that dragging away does not take the answer back.
            actsOnPress: true
            focus: true
            KeyNavigation.tab: close
            KeyNavigation.backtab: close
            onActivated: item.dialog.touchButton()
        }
        KelIconButton {
            id: close

            objectName: "dialogCloseIcon"
            anchors.right: parent.right
            anchors.top: parent.top
            // The glyph's box of 40 stands 8 from the corner; what can be touched reaches further.
            anchors.margins: KelSpacing.tiny - (KelSizes.touch - KelSizes.semiX) / 2
            number: KelIcons.Close
            text: item.dialog.closeText
            KeyNavigation.tab: button
            KeyNavigation.backtab: button
            onActivated: item.dialog.touchCloseIcon()
        }
    }
}
