import QtQuick
import KelDS
import Quillet.Views
import Quillet.Checkout

Item {
    id: header

    required property var status
    readonly property var view: header.status.headerView

    // Columns lay themselves out with the next frame, which would be one too late: the list that this header opens begins
    // in the middle of a header that grows after it was put in place.
    function layOut() {
        facts.forceLayout()
        column.forceLayout()
    }

    height: column.height + header.status.partSpacing + header.status.sideSpacing

    Component.onCompleted: header.layOut()
    onWidthChanged: header.layOut()

    Column {
        id: column

        x: header.status.sideSpacing
        y: header.status.partSpacing
        width: parent.width - 2 * header.status.sideSpacing

        LabelView {
            width: parent.width
            label: header.status.cycleLabel
            Accessible.role: Accessible.Heading
        }
        LabelView {
            width: parent.width
            topPadding: 12
            label: header.status.totalAddedProductPointsLabel
        }
        Item {
            width: 1
            height: header.status.partSpacing
        }
        KelCard {
            padding: header.view.partSpacing
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
                    x: KelSpacing.tiny
                    width: parent.width - 2 * KelSpacing.tiny
                    topPadding: header.view.partSpacing
                    bottomPadding: header.view.partSpacing
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

                        required property var modelData

                        width: parent.width
                        height: Math.max(KelSizes.semiX, text.implicitHeight + KelSpacing.tiny)

                        KelLabel {
                            id: text

                            width: tag.x - KelSpacing.tiny
                            height: parent.height
                            text: counter.modelData.leftText
                            size: 7
                            wrapMode: Text.Wrap
                        }
                        KelTag {
                            id: tag

                            anchors.right: parent.right
                            anchors.verticalCenter: parent.verticalCenter
                            text: counter.modelData.tagText
                            colorIndex: counter.modelData.tagColorIndex
                        }
                    }
                }
            }
        }
    }
}
