import QtQuick
import Quillet.Views
import Quillet.Checkout

Screen {
    id: screen

    loadingView: screen.controller.loadingView

    ProductsCheckoutStatusView {
        anchors.fill: parent
        status: screen.controller.status
    }
}
