import QtQuick
import QtQuick.Controls.Basic
import KelDS
import Quillet
import Quillet.Screens

// The host's bar: title and back button of the top page, as a module screen provides them. Its ground goes on below what
// the device takes of the screen's edges.
Rectangle {
    id: bar

    required property StackView stack
    readonly property var page: bar.stack.currentItem
    readonly property var screen: bar.page?.viewController ?? null
    readonly property string title: bar.screen?.title ?? bar.page?.title ?? ""
    readonly property bool hasBack: bar.stack.depth > 1 && !(bar.screen && bar.screen.hidesBackButton)
    readonly property bool mirrored: Application.layoutDirection === Qt.RightToLeft

    objectName: "hostBar"
    implicitHeight: safe.top + content.height
    color: KelColors.surface

    // Not the bar itself, whose height follows from what is measured.
    Item {
        id: edge

        width: parent.width
    }
    SafeArea {
        id: safe

        item: edge
    }
    Item {
        id: content

        x: safe.left
        y: safe.top
        width: parent.width - safe.left - safe.right
        height: Math.max(KelSizes.mediumX, title.implicitHeight + 2 * KelSpacing.tiny)
        LayoutMirroring.enabled: bar.mirrored
        LayoutMirroring.childrenInherit: true

        KelIconButton {
            id: back

            objectName: "hostBack"
            anchors.left: parent.left
            visible: bar.hasBack
            width: KelSizes.mediumX
            height: parent.height
            // The arrow points to where the pages come back from.
            rotation: bar.mirrored ? 180 : 0
            number: KelIcons.ArrowBack
            color: KelColors.highEmphasis
            text: "Atrás"
            onActivated: if (!Covers.over(this)) bar.stack.pop()
        }
        KelLabel {
            id: title

            objectName: "hostTitle"
            anchors.left: back.visible ? back.right : parent.left
            anchors.right: parent.right
            anchors.leftMargin: back.visible ? 0 : KelSpacing.small
            anchors.rightMargin: KelSpacing.small
            height: parent.height
            text: bar.title
            size: KelFonts.Headline6
            weight: KelFonts.Medium
            wrapMode: Text.Wrap
        }
    }
    KelDivider {
        anchors.bottom: parent.bottom
        width: parent.width
        // A tab bar directly below the host's bar continues its colour.
        visible: !(bar.screen?.continuesBar ?? false)
    }
}
