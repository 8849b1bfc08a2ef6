import QtQuick
import KelDS

// A page of the host that the module navigates to.
Item {
    id: page

    property string title
    property string message
    property int icon

    Column {
        anchors.centerIn: parent
        width: parent.width - 2 * KelSpacing.standard
        spacing: KelSpacing.semi

        KelIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            number: page.icon
            size: KelSizes.large
            color: KelColors.primary
        }
        KelLabel {
            width: parent.width
            text: page.message
            lineHeight: 1.3
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }
    }
}
