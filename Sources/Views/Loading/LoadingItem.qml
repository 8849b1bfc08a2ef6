import QtQuick
import Quillet

// The overlay and its ring. It takes every touch and key, so that nothing below it can be used while a call runs.
Cover {
    id: loading

    required property LoadingView loadingView
    // The part of the cover that the screen itself takes up: its content is hidden, the host's bar only dimmed.
    required property rect screenArea

    Accessible.role: Accessible.Animation
    Accessible.name: loading.loadingView.name

    Rectangle {
        x: loading.screenArea.x
        y: loading.screenArea.y
        width: loading.screenArea.width
        height: loading.screenArea.height
        color: loading.loadingView.backgroundColor
    }
    Rectangle {
        anchors.fill: parent
        color: loading.loadingView.overlayColor
    }
    ProgressIndicatorItem {
        anchors.centerIn: parent
        width: loading.loadingView.indicatorSize
        height: loading.loadingView.indicatorSize
        indicator: loading.loadingView.progressIndicator
        time: clock.elapsedTime
    }
    FrameAnimation {
        id: clock

        running: loading.visible
    }
}
