import QtQuick
import QtQuick.Controls.Basic
import KelDS

ScrollBar {
    id: bar

    contentItem: Rectangle {
        implicitWidth: KelSizes.micro
        implicitHeight: KelSizes.micro
        visible: bar.size < 1
        radius: KelBorderRadius.small
        color: KelColors.lowEmphasis
    }
}
