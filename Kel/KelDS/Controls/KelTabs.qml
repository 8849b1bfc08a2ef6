// Views and loaders of Qt 6.4 cannot create bound components, so components refer to this file's ids unqualified.
// qmllint disable unqualified

import QtQuick
import KelDS

// A tab bar: one title a tab, the current one underlined.
Rectangle {
    id: tabs

    property list<string> titles
    property int currentIndex: 0

    // How far the titles keep off the sides beyond their usual distance.
    property real leftInset: 0
    property real rightInset: 0

    implicitHeight: Math.max(KelSizes.medium, row.implicitHeight)
    color: KelColors.surface
    Accessible.role: Accessible.PageTabList

    KelDivider {
        anchors.bottom: parent.bottom
        width: parent.width
    }
    Row {
        id: row

        anchors.left: parent.left
        anchors.leftMargin: KelSpacing.small + (tabs.LayoutMirroring.enabled ? tabs.rightInset : tabs.leftInset)
        height: parent.height
        spacing: KelSpacing.semi

        Repeater {
            model: tabs.titles

            KelPressable {
                id: tab

                required property int index
                required property string modelData
                readonly property bool current: tab.index === tabs.currentIndex

                height: parent.height
                implicitHeight: implicitContentHeight + KelSpacing.small
                text: tab.modelData
                // A tab bar with a single tab leads nowhere else.
                focusPolicy: tabs.titles.length > 1 ? Qt.StrongFocus : Qt.NoFocus
                // A button is a button to screen readers whatever its role says, so its text stands for the tab.
                Accessible.ignored: true
                onActivated: tabs.currentIndex = tab.index
                contentItem: KelLabel {
                    text: tab.text
                    size: KelFonts.Button
                    weight: KelFonts.Bold
                    color: tab.current ? KelColors.highEmphasis : KelColors.mediumEmphasis
                    Accessible.role: Accessible.PageTab
                    Accessible.selected: tab.current
                    Accessible.onPressAction: tabs.currentIndex = tab.index
                }
                background: Item {
                    Rectangle {
                        anchors.bottom: parent.bottom
                        width: parent.width
                        height: 3
                        visible: tab.current
                        color: KelColors.primaryEdge
                    }
                    KelFocusRing {
                        visible: tab.showsFocus
                        gap: -4
                    }
                }
            }
        }
    }
}
