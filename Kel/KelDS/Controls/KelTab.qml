import QtQuick
import KelDS

// A tab bar with a single, selected tab.
Rectangle {
    id: tab

    property string text

    implicitHeight: KelSizes.medium
    color: KelColors.surface

    KelLabel {
        id: label

        x: KelSpacing.small
        height: parent.height
        text: tab.text
        size: 10
        weight: 2
        Accessible.role: Accessible.PageTab
    }
    Rectangle {
        x: label.x
        anchors.bottom: parent.bottom
        width: label.width
        height: 3
        color: KelColors.primary
    }
    KelDivider {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
