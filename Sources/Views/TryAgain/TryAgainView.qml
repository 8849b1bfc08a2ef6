import QtQuick
import KelDS

// The group of image and message stands at 40 % of the free height, above the button, and scrolls where it is too tall.
Rectangle {
    id: root

    required property var tryAgain

    color: root.tryAgain.backgroundColor

    Flickable {
        id: page

        anchors.fill: parent
        anchors.bottomMargin: button.height + 2 * root.tryAgain.buttonSpacing
        contentHeight: Math.max(page.height, group.height + 2 * root.tryAgain.sideSpacing)
        clip: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: group

            y: Math.max(root.tryAgain.sideSpacing,
                        Math.round(Math.min(0.4 * (root.height - group.height), page.height - group.height)))
            width: root.width
            spacing: root.tryAgain.labelSpacing

            Image {
                anchors.horizontalCenter: parent.horizontalCenter
                width: root.tryAgain.iconSize
                height: root.tryAgain.iconSize
                sourceSize.width: width
                sourceSize.height: height
                source: root.tryAgain.icon
            }
            KelLabel {
                x: root.tryAgain.labelSpacing
                width: parent.width - 2 * root.tryAgain.labelSpacing
                text: root.tryAgain.message
                size: 4
                color: root.tryAgain.labelColor
                lineHeight: 1.2
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
            }
        }
    }
    KelScrollHint {
        page: page
    }
    KelButton {
        id: button

        x: root.tryAgain.sideSpacing
        width: parent.width - 2 * root.tryAgain.sideSpacing
        anchors.bottom: parent.bottom
        anchors.bottomMargin: root.tryAgain.buttonSpacing
        text: root.tryAgain.submitButton.title
        identifier: root.tryAgain.submitButton.identifier
        outlined: root.tryAgain.submitButton.outlined
        onActivated: root.tryAgain.tap()
    }
}
