// Bound components cannot be made by a view or a loader in Qt 6.4, so the ids of this file are seen from inside them.
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

    Loader {
        anchors.fill: parent
        active: page.contentView !== null
        sourceComponent: SaleSummaryItem {
            summary: page.contentView
        }
    }
}
