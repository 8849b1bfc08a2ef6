import QtQuick
import KelDS

// One line of the size picker's menu.
KelPressable {
    id: row

    property bool chosen: false

    implicitWidth: 4 * KelSizes.semiX
    implicitHeight: KelSizes.semiX
    Accessible.checkable: true
    Accessible.checked: row.chosen
    Keys.onDownPressed: row.nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason)
    Keys.onUpPressed: row.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

    background: Rectangle {
        radius: KelBorderRadius.medium
        color: row.down ? KelColors.tint(KelColors.primary) : "transparent"

        KelFocusRing {
            visible: row.showsFocus
            gap: -2
            cornerRadius: KelBorderRadius.medium
        }
    }
    contentItem: Item {
        KelLabel {
            x: KelSpacing.tiny
            height: parent.height
            text: row.text
            size: KelFonts.Subtitle2
            weight: row.chosen ? KelFonts.Medium : KelFonts.Regular
            Accessible.ignored: true
        }
        KelIcon {
            anchors.right: parent.right
            anchors.rightMargin: KelSpacing.tiny
            anchors.verticalCenter: parent.verticalCenter
            visible: row.chosen
            number: KelIcons.CheckCircle
            color: KelColors.success
        }
    }
}
