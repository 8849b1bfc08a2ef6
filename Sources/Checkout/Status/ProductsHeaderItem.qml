import QtQuick
import KelDS
import Quillet
import Quillet.Screens

Item {
    id: header

    required property ProductsCheckoutStatusView status
    required property SafeArea safeArea
    readonly property ProductsHeaderView view: header.status.headerView

    // Columns lay themselves out with the next frame, which would be one too late: the list that this header opens begins
    // in the middle of a header that grows after it was put in place.
    function layOut() {
        facts.forceLayout()
        column.forceLayout()
    }

    height: column.height + KelSpacing.small

    Component.onCompleted: header.layOut()

    PageColumn {
        id: column

        onWidthChanged: header.layOut()

        topPadding: KelSpacing.semi
        safeArea: header.safeArea

        LabelItem {
            width: parent.width
            label: header.status.cycleLabel
            Accessible.role: Accessible.Heading
        }
        LabelItem {
            width: parent.width
            topPadding: 12
            label: header.status.totalAddedProductPointsLabel
        }
        Item {
            width: 1
            height: KelSpacing.semi
        }
        KelCard {
            bottomPadding: KelSpacing.tiny
            width: parent.width

            Column {
                id: facts

                width: parent.width

                StatusIcon {
                    anchors.horizontalCenter: parent.horizontalCenter
                    status: header.view.iconView
                }
                KelLabel {
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: parent.width - 2 * KelSpacing.tiny
                    topPadding: KelSpacing.small
                    bottomPadding: KelSpacing.small
                    text: header.view.mainMessage
                    font: header.view.mainMessageFont
                    color: header.view.mainMessageColor
                    lineHeight: 1.25
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                }
                KelDivider {
                    width: parent.width
                }
                Item {
                    width: 1
                    height: KelSpacing.micro
                }
                Repeater {
                    model: header.view.textWithTagViews

                    Item {
                        id: counter

                        required property textWithTagView modelData

                        width: parent.width
                        height: Math.max(KelSizes.semiX, text.implicitHeight + KelSpacing.tiny)

                        KelLabel {
                            id: text

                            anchors.left: parent.left
                            anchors.right: tag.left
                            anchors.rightMargin: KelSpacing.tiny
                            height: parent.height
                            text: counter.modelData.leftText
                            size: KelFonts.Subtitle2
                            wrapMode: Text.Wrap
                        }
                        KelTag {
                            id: tag

                            anchors.right: parent.right
                            anchors.verticalCenter: parent.verticalCenter
                            text: counter.modelData.tagText
                            tagColor: counter.modelData.tagLabel
                        }
                    }
                }
            }
        }
    }
}
