// Views and loaders of Qt 6.4 cannot create bound components, so components refer to this file's ids unqualified.
// qmllint disable unqualified

import QtQuick
import QtQuick.Controls.Basic
import KelDS
import Demo

// The size of the phone-sized area, and a menu of others.
KelPressable {
    id: picker

    required property PhoneArea area
    property bool opensUpwards: false

    implicitWidth: picker.implicitContentWidth
    implicitHeight: KelSizes.touch
    text: "Size: " + picker.area.label
    onActivated: menu.visible ? menu.close() : menu.open()

    background: Item {
        Rectangle {
            anchors.centerIn: parent
            width: parent.width
            height: KelSizes.semi
            radius: height / 2
            color: picker.down ? KelColors.tint(KelColors.primary) : KelColors.surface
            border.width: 1
            border.color: KelColors.hairline

            KelFocusRing {
                visible: picker.showsFocus
                gap: 0
                cornerRadius: parent.radius
            }
        }
    }
    contentItem: Row {
        leftPadding: KelSpacing.small
        rightPadding: KelSpacing.tiny
        spacing: KelSpacing.micro

        KelLabel {
            width: Math.ceil(implicitWidth)
            height: parent.height
            text: picker.area.label
            size: KelFonts.Caption
            weight: KelFonts.Medium
            Accessible.ignored: true
        }
        KelIcon {
            height: parent.height
            number: KelIcons.ExpandMore
        }
    }

    Popup {
        id: menu

        y: picker.opensUpwards ? -height : picker.height
        // Keeps the menu in the window.
        margins: KelSpacing.tiny
        padding: KelSpacing.tiny
        focus: true
        closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutsideParent
        enter: Transition {}
        exit: Transition {}

        background: KelCard {}
        contentItem: Column {
            Repeater {
                model: picker.area.choices

                SizeRow {
                    required property int index
                    required property string modelData

                    text: modelData
                    chosen: index === picker.area.choice
                    focus: index === 0
                    onActivated: {
                        menu.close()
                        picker.area.choose(index)
                    }
                }
            }
            KelDivider {
                width: parent.width
                visible: picker.area.liveToggle !== ""
            }
            SizeRow {
                visible: text !== ""
                text: picker.area.liveToggle
                onActivated: {
                    menu.close()
                    picker.area.toggleLive()
                }
            }
        }
    }
}
