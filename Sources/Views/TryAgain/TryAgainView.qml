import QtQuick
import KelDS

Rectangle {
    id: root

    required property var tryAgain

    color: KelColors.background

    Flickable {
        id: page

        anchors.fill: parent
        anchors.bottomMargin: button.height + 2 * KelSpacing.semi
        contentHeight: Math.max(page.height, group.height + 2 * KelSpacing.small)
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: group

            y: Math.max(KelSpacing.small, Math.round(0.4 * (page.height - group.height)))
            width: root.width
            spacing: KelSpacing.standard

            Image {
                anchors.horizontalCenter: parent.horizontalCenter
                width: 200
                height: 200
                sourceSize.width: width
                sourceSize.height: height
                source: root.tryAgain.icon
            }
            KelLabel {
                x: KelSpacing.standard
                width: parent.width - 2 * KelSpacing.standard
                text: root.tryAgain.message
                size: 4
                lineHeight: 1.2
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
            }
        }
    }
    KelButton {
        id: button

        x: KelSpacing.small
        width: parent.width - 2 * KelSpacing.small
        anchors.bottom: parent.bottom
        anchors.bottomMargin: KelSpacing.semi
        text: root.tryAgain.buttonText
        identifier: root.tryAgain.buttonAccessibilityText
        onActivated: root.tryAgain.tap()
    }
}
