import QtQuick
import Quillet

ModulePage {
    id: page

    required property ProductsCheckoutStatusViewController controller

    viewController: page.controller
    loadingView: page.controller.loadingView
    scrolling: content

    ProductsCheckoutStatusItem {
        id: content

        anchors.fill: parent
        status: page.controller.status
        safeArea: page.safeArea
    }
}
