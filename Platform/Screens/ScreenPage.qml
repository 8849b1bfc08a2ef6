import QtQuick
import QtQuick.Controls.Basic
import Quillet.Screens

// A page of a StackView that draws a view controller: its ground, and its lifecycle by that of the stack.
ScreenItem {
    id: page

    // What the device takes of the stack's edges; not of the page's own, which slide.
    readonly property SafeArea safeArea: SafeArea {
        item: page.StackView.view
    }
    // Whether the page is the one that is shown, or about to be.
    readonly property bool onTop: StackView.status === StackView.Active || StackView.status === StackView.Activating

    // What is scrolled must not reach over the host's bar, whether or not the host cuts its pages off.
    clip: true
    focus: page.onTop
    LayoutMirroring.enabled: page.mirrored
    LayoutMirroring.childrenInherit: true
    StackView.onActivating: page.viewWillAppear()
    StackView.onDeactivating: page.viewWillDisappear()
    StackView.onRemoved: page.viewDidLeave()

    Rectangle {
        anchors.fill: parent
        z: -1
        color: page.viewController ? page.viewController.backgroundColor : "transparent"
    }
}
