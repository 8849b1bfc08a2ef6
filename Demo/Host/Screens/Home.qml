// Views and loaders of Qt 6.4 cannot create bound components, so components refer to this file's ids unqualified.
// qmllint disable unqualified

import QtQuick
import QtQuick.Controls.Basic
import KelDS
import Quillet.Screens

// Incoming orders, as they came over WhatsApp.
ListView {
    id: home

    required property var host
    readonly property string title: "Pedidos recibidos"

    topMargin: KelSpacing.small
    bottomMargin: KelSpacing.small + safe.bottom
    spacing: 12
    // Keeps all orders there, as Tab finds no others.
    cacheBuffer: 100 * KelSizes.large
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    model: home.host.orders
    // From Qt 6.8 on a list places its delegates at its own edge, whatever their x.
    delegate: Item {
        id: row

        required property var modelData
        required property int index

        width: ListView.view.width
        implicitHeight: order.implicitHeight

        KelPressable {
            id: order

            objectName: "hostOrder"
            x: safe.left + KelSpacing.small
            width: row.width - safe.left - safe.right - 2 * KelSpacing.small
            implicitHeight: implicitContentHeight
            Accessible.name: row.modelData.customer + ". " + row.modelData.title
            onActivated: home.host.openOrder(row.index)
            onVisualFocusChanged: if (visualFocus) home.positionViewAtIndex(row.index, ListView.Contain)

            contentItem: KelCard {
                border.width: order.visualFocus ? 2 : 1
                border.color: order.visualFocus ? KelColors.highEmphasis : KelColors.hairline
                color: order.down ? KelColors.tint(KelColors.primary) : KelColors.surface

                Row {
                    width: parent.width
                    spacing: 12

                    Rectangle {
                        width: KelSizes.semiX
                        height: KelSizes.semiX
                        radius: width / 2
                        color: KelColors.tint(KelColors.success)

                        KelIcon {
                            anchors.centerIn: parent
                            number: KelIcons.Message
                            size: KelSizes.standard
                            color: KelColors.success
                        }
                    }
                    Column {
                        width: parent.width - KelSizes.semiX - 12
                        spacing: KelSpacing.micro

                        KelLabel {
                            width: parent.width
                            text: row.modelData.customer
                            weight: KelFonts.Medium
                            wrapMode: Text.Wrap
                        }
                        KelLabel {
                            width: parent.width
                            text: row.modelData.message
                            size: KelFonts.Subtitle2
                            lineHeight: 1.2
                            color: KelColors.mediumEmphasis
                            wrapMode: Text.Wrap
                        }
                        KelLabel {
                            width: parent.width
                            text: row.modelData.consultant + " · " + row.modelData.title
                            wrapMode: Text.Wrap
                            size: KelFonts.Caption
                            color: KelColors.mediumEmphasis
                        }
                    }
                }
            }
        }
    }

    // The place of the stack is the page's own, even while the page moves.
    SafeArea {
        id: safe

        item: home.StackView.view
    }
}
