import QtQuick
import KelDS
import Quillet
import Quillet.Screens

// The group of image and message stands at 40 % of the free height, above the button, and scrolls where it is too tall.
Rectangle {
    id: root

    required property TryAgainView tryAgain
    required property SafeArea safeArea

    color: root.tryAgain.backgroundColor
    Accessible.role: Accessible.Grouping
    Accessible.name: root.tryAgain.message
    AccessibleState.announcement: root.tryAgain.message
    Keys.forwardTo: [page]

    ScrollableView {
        id: page

        anchors.fill: parent
        anchors.topMargin: root.safeArea.top
        anchors.bottomMargin: button.height + 2 * KelSpacing.semi + root.safeArea.bottom
        contentHeight: Math.max(page.height, group.height + 2 * KelSpacing.small)

        PageColumn {
            id: group

            y: Math.max(KelSpacing.small,
                        Math.round(Math.min(0.4 * (root.height - group.height), page.height - group.height)))
            safeArea: root.safeArea
            spacing: KelSpacing.standard

            Image {
                anchors.horizontalCenter: parent.horizontalCenter
                // Low screens keep the message in view.
                width: Math.round(Math.min(root.tryAgain.iconSize, Math.max(KelSizes.large, page.height / 2)))
                height: width
                sourceSize.width: width
                sourceSize.height: height
                source: root.tryAgain.icon
            }
            KelLabel {
                anchors.horizontalCenter: parent.horizontalCenter
                width: parent.width - 2 * KelSpacing.small
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

        x: group.x + Math.round((group.width - width) / 2)
        anchors.bottom: parent.bottom
        anchors.bottomMargin: KelSpacing.semi + root.safeArea.bottom
        width: Math.min(KelSizes.dialog, group.width)
        text: root.tryAgain.submitButton.title
        identifier: root.tryAgain.submitButton.identifier
        outlined: root.tryAgain.submitButton.outlined
        onActivated: if (!Covers.over(button)) root.tryAgain.tap()
    }
}
