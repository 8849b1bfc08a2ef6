import QtQuick
import QtQuick.Controls.Basic
import KelDS
import Quillet

// The host's bar: title and back button of the top page, as a module screen provides them.
Rectangle {
    id: bar

    required property StackView stack
    readonly property var page: bar.stack.currentItem
    readonly property var screen: bar.page?.viewController ?? null
    readonly property string title: bar.screen?.title ?? bar.page?.title ?? ""
    readonly property bool hasBack: bar.stack.depth > 1 && !(bar.screen && bar.screen.hidesBackButton)

    objectName: "hostBar"
    height: KelSizes.mediumX
    color: KelColors.surface

    KelIconButton {
        id: back

        objectName: "hostBack"
        visible: bar.hasBack
        width: KelSizes.mediumX
        height: parent.height
        number: KelIcons.ArrowBack
        color: KelColors.highEmphasis
        text: "Atrás"
        onActivated: if (!Covers.over(this)) bar.stack.pop()
    }
    KelLabel {
        x: back.visible ? KelSizes.mediumX : KelSpacing.small
        width: parent.width - x - KelSpacing.small
        height: parent.height
        text: bar.title
        size: KelFonts.Headline6
        weight: KelFonts.Medium
        elide: Text.ElideRight
    }
    KelDivider {
        anchors.bottom: parent.bottom
        width: parent.width
        // A tab bar directly below the host's bar continues its colour.
        visible: !(bar.screen?.continuesBar ?? false)
    }
}
