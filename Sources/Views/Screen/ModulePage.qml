// Views and loaders of Qt 6.4 cannot create bound components, so components refer to this file's ids unqualified.
// qmllint disable unqualified

import QtQuick
import Quillet
import Quillet.Screens

// What every page of the module has: overlays of its own, which lie above the host's bar.
ScreenPage {
    id: page

    required property LoadingView loadingView
    property Dialog dialog: null
    property TryAgainView tryAgainView: null
    // What scrolls by the keys that nothing else takes.
    property Item scrolling: null
    readonly property bool isCovered: dialogLoader.active || loadingLoader.active

    Accessible.role: Accessible.Pane
    Accessible.name: page.viewController ? page.viewController.title : ""
    AccessibleState.busy: page.onTop && page.loadingView.onScreen
    AccessibleState.sealed: page.isCovered

    Keys.forwardTo: [tryAgainLoader.item || page.scrolling || page]

    Loader {
        id: tryAgainLoader

        anchors.fill: parent
        z: 1
        active: page.tryAgainView !== null
        sourceComponent: TryAgainItem {
            tryAgain: page.tryAgainView
            safeArea: page.safeArea
        }
    }
    Loader {
        id: dialogLoader

        parent: page.coverArea
        anchors.fill: parent
        z: 1
        LayoutMirroring.enabled: page.mirrored
        LayoutMirroring.childrenInherit: true
        active: page.onTop && page.dialog !== null && page.dialog.onScreen
        sourceComponent: DialogItem {
            below: page
            dialog: page.dialog
        }
    }
    Loader {
        id: loadingLoader

        parent: page.coverArea
        anchors.fill: parent
        z: 2
        LayoutMirroring.enabled: page.mirrored
        LayoutMirroring.childrenInherit: true
        active: page.onTop && page.loadingView.onScreen
        sourceComponent: LoadingItem {
            below: page
            loadingView: page.loadingView
            screenArea: page.coverArea ? page.coverArea.mapFromItem(page.parent, 0, 0, page.width, page.height)
                                       : Qt.rect(0, 0, 0, 0)
        }
    }
}
