// Views and loaders of Qt 6.4 cannot create bound components, so components refer to this file's ids unqualified.
// qmllint disable unqualified

import QtQuick
import Quillet

ModulePage {
    id: page

    required property SaleSummaryViewController controller
    readonly property SaleSummaryView contentView: page.controller.contentView

    viewController: page.controller
    loadingView: page.controller.loadingView
    dialog: page.controller.dialog
    tryAgainView: page.controller.tryAgainView
    scrolling: content.item as Item

    Loader {
        id: content

        anchors.fill: parent
        active: page.contentView !== null
        sourceComponent: SaleSummaryItem {
            summary: page.contentView
            safeArea: page.safeArea
        }
    }
}
