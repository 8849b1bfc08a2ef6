// Views and loaders of Qt 6.4 cannot create bound components, so components refer to this file's ids unqualified.
// qmllint disable unqualified

import QtQuick
import QtQuick.Controls.Basic
import KelDS
import Demo

ApplicationWindow {
    id: window

    required property var host
    required property PhoneArea area
    readonly property alias stack: stack
    readonly property alias phone: phone

    // The side that pages come from, as a factor; with reduced motion they come from nowhere.
    readonly property int side: KelMotion.reduced ? 0 : Application.layoutDirection === Qt.RightToLeft ? -1 : 1

    title: "Quillet"
    color: KelColors.background

    function showHome() {
        stack.pop(null)
    }
    function showHostPage(title, message, icon) {
        stack.pop(null, StackView.Immediate)
        stack.push(page, { title: title, message: message, icon: icon })
    }

    Item {
        id: phone

        width: window.area.live ? window.area.width : parent.width
        height: window.area.live ? window.area.height : parent.height - window.area.strip
        clip: true

        Bar {
            id: bar

            width: parent.width
            stack: stack
        }
        StackView {
            id: stack

            anchors.top: bar.bottom
            anchors.bottom: parent.bottom
            width: parent.width
            clip: true
            // A page slides in over the one below it, which moves a little; with reduced motion
            // the one fades out and the other in.
            pushEnter: Transition {
                NumberAnimation {
                    property: "x"
                    from: window.side * stack.width
                    to: 0
                    duration: KelMotion.page
                    easing.type: Easing.OutCubic
                }
                NumberAnimation {
                    property: "opacity"
                    from: KelMotion.reduced ? 0 : 1
                    to: 1
                    duration: KelMotion.page
                }
            }
            pushExit: Transition {
                NumberAnimation {
                    property: "x"
                    from: 0
                    to: -window.side * KelSizes.large
                    duration: KelMotion.page
                    easing.type: Easing.OutCubic
                }
                NumberAnimation {
                    property: "opacity"
                    from: 1
                    to: KelMotion.reduced ? 0 : 1
                    duration: KelMotion.page
                }
            }
            popEnter: Transition {
                NumberAnimation {
                    property: "x"
                    from: -window.side * KelSizes.large
                    to: 0
                    duration: KelMotion.page
                    easing.type: Easing.OutCubic
                }
                NumberAnimation {
                    property: "opacity"
                    from: KelMotion.reduced ? 0 : 1
                    to: 1
                    duration: KelMotion.page
                }
            }
            popExit: Transition {
                NumberAnimation {
                    property: "x"
                    from: 0
                    to: window.side * stack.width
                    duration: KelMotion.page
                    easing.type: Easing.OutCubic
                }
                NumberAnimation {
                    property: "opacity"
                    from: 1
                    to: KelMotion.reduced ? 0 : 1
                    duration: KelMotion.page
                }
            }
            initialItem: Home {
                host: window.host
            }
        }
    }
    // Below a phone that is not as high as Live.
    Ground {
        y: phone.height
        width: phone.width
        height: parent.height - y
        visible: window.area.live

        KelDivider {
            width: parent.width
        }
    }
    Loader {
        y: phone.height
        width: parent.width
        active: window.area.strip > 0
        sourceComponent: strip
    }
    Component {
        id: strip

        SizeStrip {
            height: window.area.strip
            area: window.area
        }
    }
    Component {
        id: page

        HostPage {}
    }
    Loader {
        x: phone.width
        width: parent.width - x
        height: parent.height
        active: window.area.live
        sourceComponent: live
    }
    Component {
        id: live

        Live {
            journal: window.host.journal
            status: window.host.status
            area: window.area
            moduleOpen: bar.screen !== null
        }
    }
}
