// Bound components cannot be made by a view or a loader in Qt 6.4, so the ids of this file are seen from inside them.
// qmllint disable unqualified

import QtQuick
import Quillet.Views
import Quillet.SaleSummary

Screen {
    id: screen

    loadingView: screen.controller.loadingView
    dialog: screen.controller.dialogMessage

    Loader {
        anchors.fill: parent
        active: screen.controller.contentView !== null
        sourceComponent: SaleSummaryView {
            summary: screen.controller.contentView
        }
    }
    Loader {
        anchors.fill: parent
        active: screen.controller.tryAgainView !== null
        sourceComponent: TryAgainView {
            tryAgain: screen.controller.tryAgainView
        }
    }
}
