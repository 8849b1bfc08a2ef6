import QtQuick
import QtQuick.Controls.Basic
import KelDS
import Quillet.Screens

// A page of the host that the module navigates to. It scrolls where its texts are too large for the screen.
Flickable {
    id: page

    property string title
    property string message
    property int icon
    readonly property real room: page.height - safe.bottom

    function scrollBy(distance: real) {
        page.contentY = Math.max(0, Math.min(page.contentHeight - page.height, page.contentY + distance))
    }

    contentHeight: Math.max(page.room, column.height + 2 * KelSpacing.small) + safe.bottom
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: true
    Keys.onUpPressed: page.scrollBy(-KelSizes.large)
    Keys.onDownPressed: page.scrollBy(KelSizes.large)

    // The place of the stack is the page's own, even while the page moves in.
    SafeArea {
        id: safe

        item: page.StackView.view
    }
    Column {
        id: column

        x: safe.left + KelSpacing.standard
        y: Math.max(KelSpacing.small, (page.room - height) / 2)
        width: page.width - safe.left - safe.right - 2 * KelSpacing.standard
        spacing: KelSpacing.semi

        KelIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            number: page.icon
            size: KelSizes.large
            color: KelColors.primary
        }
        KelLabel {
            objectName: "hostMessage"
            width: parent.width
            text: page.message
            lineHeight: 1.3
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }
    }
}
