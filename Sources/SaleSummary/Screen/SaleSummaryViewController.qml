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
