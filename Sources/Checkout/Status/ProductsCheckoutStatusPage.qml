import QtQuick
import Quillet

ModulePage {
    id: page

    required property ProductsCheckoutStatusViewController controller

    viewController: page.controller
    loadingView: page.controller.loadingView

    ProductsCheckoutStatusItem {
        anchors.fill: parent
        status: page.controller.status
    }
}
