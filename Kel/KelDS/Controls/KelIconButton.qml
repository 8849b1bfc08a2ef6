import QtQuick
import KelDS

// A tappable icon. `text` is its accessible name and is not shown.
KelPressable {
    id: button

    required property int number
    property color color: KelColors.mediumEmphasis

    implicitWidth: KelSizes.touch
    implicitHeight: KelSizes.touch

    contentItem: Item {
        KelIcon {
            anchors.centerIn: parent
            number: button.number
            size: KelSizes.standard
            color: button.color
        }
    }
    background: Rectangle {
        anchors.fill: parent
        radius: width / 2
        color: button.down ? KelColors.withAlpha(KelColors.highEmphasis, KelOpacity.low) : "transparent"

        KelFocusRing {
            visible: button.showsFocus
            gap: 0
            cornerRadius: parent.radius
        }
    }
}
