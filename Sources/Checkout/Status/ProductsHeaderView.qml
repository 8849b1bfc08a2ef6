import QtQuick
import KelDS
import Quillet.Checkout

Item {
    id: header

    required property var status

    height: column.height + KelSpacing.semi + KelSpacing.small

    Column {
        id: column

        x: KelSpacing.small
        y: KelSpacing.semi
        width: parent.width - 2 * KelSpacing.small

        KelLabel {
            text: header.status.cycle.caption + header.status.cycle.value
            size: 4
            weight: 2
        }
        KelLabel {
            width: parent.width
            visible: text !== ""
            topPadding: KelSpacing.tiny
            text: header.status.totalAddedProductPoints
            weight: 1
            color: KelColors.success
            wrapMode: Text.Wrap
        }
        Item {
            width: 1
            height: KelSpacing.semi
        }
        KelCard {
            width: parent.width

            Column {
                width: parent.width

                StatusIcon {
                    anchors.horizontalCenter: parent.horizontalCenter
                    status: header.status.icon
                }
                KelLabel {
                    x: KelSpacing.tiny
                    width: parent.width - 2 * KelSpacing.tiny
                    topPadding: KelSpacing.small
                    bottomPadding: KelSpacing.small
                    text: header.status.mainMessage
                    weight: 1
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
                    model: header.status.counters

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
                            colorIndex: counter.modelData.alert ? 3 : 1
                        }
                    }
                }
            }
        }
    }
}
