// Bound components cannot be made by a view or a loader in Qt 6.4, so the ids of this file are seen from inside them.
// qmllint disable unqualified

import QtQuick
import QtQuick.Controls.Basic
import Quillet.Views

// What every screen has: a ground, its overlays above the host's bar, and the stack's lifecycle.
ScreenItem {
    id: screen

    required property var controller
    property var loadingView: null
    property var dialog: null
    readonly property bool onTop: StackView.status === StackView.Active || StackView.status === StackView.Activating

    viewController: screen.controller
    // What is scrolled must not reach over the host's bar, whether or not the host cuts its pages off.
    clip: true
    StackView.onActivating: screen.viewWillAppear()
    StackView.onDeactivating: screen.viewWillDisappear()
    StackView.onRemoved: screen.viewDidLeave()

    Rectangle {
        anchors.fill: parent
        z: -1
        color: screen.controller.backgroundColor
    }
    Loader {
        parent: screen.coverArea
        anchors.fill: parent
        z: 1
        active: screen.onTop && screen.dialog !== null && screen.dialog.onScreen
        sourceComponent: Dialog {
            dialog: screen.dialog
        }
    }
    Loader {
        parent: screen.coverArea
        anchors.fill: parent
        z: 2
        active: screen.onTop && screen.loadingView !== null && screen.loadingView.onScreen
        sourceComponent: LoadingView {
            loadingView: screen.loadingView
            screenArea: screen.coverArea ? screen.coverArea.mapFromItem(screen.parent, 0, 0, screen.width, screen.height)
                                         : Qt.rect(0, 0, 0, 0)
        }
    }
}
