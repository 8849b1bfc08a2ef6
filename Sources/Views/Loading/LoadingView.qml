import QtQuick
import KelDS

// The overlay and its ring. It takes every touch, so that nothing below it can be tapped while a call runs.
Item {
    id: loading

    Accessible.role: Accessible.Animation
    Accessible.name: ""

    Rectangle {
        anchors.fill: parent
        color: KelColors.veil
    }
    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onWheel: wheel => wheel.accepted = true
    }
    Canvas {
        id: ring

        property real head: 0
        property real tail: 0

        anchors.centerIn: parent
        width: KelSizes.mediumX
        height: KelSizes.mediumX
        onHeadChanged: ring.requestPaint()
        onTailChanged: ring.requestPaint()
        onPaint: {
            const context = getContext("2d")
            context.reset()
            context.lineWidth = KelSizes.micro
            context.strokeStyle = KelColors.primary
            context.beginPath()
            context.arc(width / 2, height / 2, KelSizes.medium / 2, ring.tail * 2 * Math.PI, ring.head * 2 * Math.PI)
            context.stroke()
        }

        RotationAnimation on rotation {
            from: 0
            to: 360
            duration: 4000
            loops: Animation.Infinite
        }
        SequentialAnimation {
            running: true
            loops: Animation.Infinite

            ParallelAnimation {
                EasedAnimation {
                    target: ring
                    property: "tail"
                    from: 0
                    to: 0.15
                    duration: 1000
                }
                EasedAnimation {
                    target: ring
                    property: "head"
                    from: 0
                    to: 1
                    duration: 1000
                }
            }
            EasedAnimation {
                target: ring
                property: "tail"
                from: 0.15
                to: 1
                duration: 500
            }
        }
    }

    component EasedAnimation: NumberAnimation {
        easing.type: Easing.BezierSpline
        easing.bezierCurve: [0.42, 0, 0.58, 1, 1, 1]
    }
}
