import QtQuick
import KelDS
import Quillet

// The group of image and message stands at 40 % of the free height, above the button, and scrolls where it is too tall.
Rectangle {
    id: root

    required property TryAgainView tryAgain

    color: root.tryAgain.backgroundColor
    Keys.forwardTo: [page]

    ScrollableView {
        id: page

        anchors.fill: parent
        anchors.bottomMargin: button.height + 2 * KelSpacing.semi
        contentHeight: Math.max(page.height, group.height + 2 * KelSpacing.small)

        Column {
            id: group

            y: Math.max(KelSpacing.small,
                        Math.round(Math.min(0.4 * (root.height - group.height), page.height - group.height)))
            width: root.width
            spacing: KelSpacing.standard

            Image {
                anchors.horizontalCenter: parent.horizontalCenter
                width: root.tryAgain.iconSize
                height: root.tryAgain.iconSize
                sourceSize.width: width
                sourceSize.height: height
                source: root.tryAgain.icon
            }
            KelLabel {
                x: KelSpacing.standard
                width: parent.width - 2 * KelSpacing.standard
                text: root.tryAgain.message
                size: KelFonts.Headline5
                color: root.tryAgain.labelColor
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
        text: root.tryAgain.submitButton.title
        identifier: root.tryAgain.submitButton.identifier
        outlined: root.tryAgain.submitButton.outlined
        onActivated: if (!Covers.over(button)) root.tryAgain.tap()
    }
}
