import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Templates as T
import KelDS

// An alert: title, message, and a close icon as the way out. It is made with the item that it lies over as its parent,
// opens by itself, and destroys itself once it has closed.
Popup {
    id: dialog

    required property string title
    required property string message
    // What a screen reader calls the close icon.
    required property string closeText
    // Whether it comes and goes by a fade.
    property bool animated: true

    x: Math.round((dialog.parent.width - dialog.width) / 2)
    y: Math.round((dialog.parent.height - dialog.height) / 2)
    width: Math.min(KelSizes.dialog, dialog.parent.width - 2 * KelSpacing.small)
    height: Math.min(dialog.implicitHeight, dialog.parent.height - 2 * KelSpacing.small)
    topPadding: KelSizes.medium
    bottomPadding: KelSpacing.semi
    horizontalPadding: KelSpacing.semi
    modal: true
    focus: true
    onClosed: dialog.destroy()
    Component.onCompleted: dialog.open()

    T.Overlay.modal: Rectangle {
        color: KelColors.withAlpha("black", KelOpacity.mediumHigh)
    }
    background: Rectangle {
        radius: KelBorderRadius.large
        color: KelColors.surface
        border.width: 1
        border.color: KelColors.edge
    }
    contentItem: Item { // qmllint disable deferred-property-id
        implicitHeight: content.height
        Accessible.role: Accessible.Dialog
        Accessible.name: dialog.title

        Flickable {
            anchors.fill: parent
            contentHeight: content.height
            clip: contentHeight > height

            Column {
                id: content

                width: parent.width
                spacing: KelSpacing.small

                KelLabel {
                    width: parent.width
                    text: dialog.title
                    size: KelFonts.Headline6
                    weight: KelFonts.Medium
                    lineHeight: 1.2
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
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
        KelIconButton {
            id: close

            readonly property real inset: KelSpacing.tiny - (KelSizes.touch - KelSizes.semiX) / 2

            objectName: "dialogCloseIcon"
            anchors.right: parent.right
            anchors.rightMargin: inset - dialog.rightPadding
            anchors.top: parent.top
            anchors.topMargin: inset - dialog.topPadding
            number: KelIcons.Close
            text: dialog.closeText
            focus: true
            KeyNavigation.tab: close
            KeyNavigation.backtab: close
            onActivated: dialog.close()
        }
    }
    enter: Transition {
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: dialog.animated ? KelMotion.dialogIn : 0
        }
    }
    exit: Transition {
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: dialog.animated ? KelMotion.dialogOut : 0
        }
    }
}
