import QtQuick
import KelDS
import Quillet
import Quillet.Screens

// The overlay and its ring. It takes every touch and key, so that nothing below it can be used while a call runs.
Cover {
    id: loading

    required property LoadingView loadingView
    // The part of the cover that the screen itself takes up: its content is hidden, the host's bar only dimmed.
    required property rect screenArea

    Accessible.role: Accessible.Animation
    Accessible.name: loading.loadingView.name
    AccessibleState.busy: true
    AccessibleState.modal: true
    AccessibleState.announcement: loading.loadingView.notice === "" ? loading.loadingView.name
                                                                    : loading.loadingView.notice

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
        id: ring

        anchors.centerIn: parent
        width: loading.loadingView.indicatorSize
        height: loading.loadingView.indicatorSize
        indicator: loading.loadingView.progressIndicator
        time: clock.elapsedTime
    }
    KelLabel {
        anchors.top: ring.bottom
        anchors.topMargin: KelSpacing.small
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(KelSizes.dialog, parent.width - 2 * KelSpacing.small)
        visible: text !== ""
        text: loading.loadingView.notice
        color: loading.loadingView.noticeColor
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }
    FrameAnimation {
        id: clock

        running: loading.visible
    }
}
