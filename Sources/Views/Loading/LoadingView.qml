import QtQuick
import KelDS
import Quillet.Views

// The overlay and its ring. It takes every touch, so that nothing below it can be tapped while a call runs.
Item {
    id: loading

    required property var loadingView
    // The part of the cover that the screen itself takes up: its content is hidden, the host's bar only dimmed.
    required property rect screenArea

    Accessible.role: Accessible.Animation
    Accessible.name: ""

    Rectangle {
        x: loading.screenArea.x
        y: loading.screenArea.y
        width: loading.screenArea.width
        height: loading.screenArea.height
        color: KelColors.background
    }
    Rectangle {
        anchors.fill: parent
        color: KelColors.veil
    }
    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onWheel: wheel => wheel.accepted = true
    }
    ProgressIndicatorItem {
        anchors.centerIn: parent
        width: KelSizes.mediumX
        height: KelSizes.mediumX
        indicator: loading.loadingView.progressIndicator
        time: clock.elapsedTime
    }
    FrameAnimation {
        id: clock

        running: loading.visible
    }
}
