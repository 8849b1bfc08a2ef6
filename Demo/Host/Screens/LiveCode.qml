import QtQuick
import QtQuick.Controls.Basic
import KelDS
import Demo

// The host's code that embeds the module, under a head that shows and hides it.
KelCard {
    id: card

    required property int openHeight
    property bool open: false
    // How far it is open.
    property real openness: card.open ? 1 : 0

    height: Math.round(KelSizes.mediumX + card.openness * (card.openHeight - KelSizes.mediumX))
    padding: 0

    Behavior on openness {
        enabled: !KelMotion.reduced

        NumberAnimation {
            duration: KelMotion.panel
            easing.type: Easing.OutCubic
        }
    }

    KelPressable {
        id: head

        objectName: "hostCodeHead"
        width: parent.width
        height: KelSizes.mediumX
        text: "Host code"
        Accessible.checkable: true
        Accessible.checked: card.open
        onActivated: card.open = !card.open

        background: Rectangle {
            anchors.fill: parent
            anchors.margins: 1
            radius: KelBorderRadius.large
            color: head.down ? KelColors.tint(KelColors.primary) : "transparent"

            KelFocusRing {
                visible: head.showsFocus
                gap: -4
                cornerRadius: KelBorderRadius.large
            }
        }
        contentItem: Item {
            KelLabel {
                x: KelSpacing.small
                height: parent.height
                text: head.text
                weight: KelFonts.Medium
                Accessible.ignored: true
            }
            KelLabel {
                anchors.right: parent.right
                anchors.rightMargin: KelSpacing.small + KelSizes.standard + KelSpacing.tiny
                height: parent.height
                text: HostCode.file
                size: KelFonts.Caption
                color: KelColors.mediumEmphasis
            }
            KelIcon {
                anchors.right: parent.right
                anchors.rightMargin: KelSpacing.small
                height: parent.height
                number: KelIcons.ExpandMore
                size: KelSizes.standard
                rotation: 180 * card.openness
            }
        }
    }
    KelDivider {
        y: KelSizes.mediumX - height
        width: parent.width
        visible: card.openness > 0
    }
    Flickable {
        id: view

        anchors.fill: parent
        anchors.topMargin: KelSizes.mediumX
        anchors.leftMargin: KelSpacing.small
        anchors.rightMargin: KelSpacing.small
        anchors.bottomMargin: KelSpacing.small
        visible: card.openness > 0
        contentWidth: text.width
        contentHeight: text.height
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: LiveScrollBar {
            parent: view.parent
            anchors.top: view.top
            anchors.bottom: view.bottom
            anchors.left: view.right
        }
        ScrollBar.horizontal: LiveScrollBar {
            parent: view.parent
            anchors.left: view.left
            anchors.right: view.right
            anchors.top: view.bottom
        }

        TextEdit {
            id: text

            objectName: "hostCode"
            topPadding: KelSpacing.small
            bottomPadding: KelSpacing.small
            readOnly: true
            selectByMouse: true
            textFormat: TextEdit.PlainText
            color: KelColors.highEmphasis
            selectionColor: KelColors.withAlpha(KelColors.primary, KelOpacity.mediumLow)
            selectedTextColor: KelColors.highEmphasis
            font.family: mono.name
            font.pixelSize: KelFonts.scaled(KelFonts.Caption, KelFonts.Regular, KelFonts.scale).pixelSize
            Accessible.name: head.text

            CodeHighlighter {
                target: text.textDocument
                code: HostCode.text
                comments: KelColors.mediumEmphasis
                texts: KelColors.success
                keywords: KelColors.link
                moduleNames: KelColors.warning
            }
        }
    }
    FontLoader {
        id: mono

        source: "DejaVuSansMono.ttf"
    }
}
