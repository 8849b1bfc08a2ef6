import Quillet

ModulePage {
    id: page

    required property CheckoutViewController controller

    viewController: page.controller
    loadingView: page.controller.loadingView
    dialog: page.controller.dialog
    tryAgainView: page.controller.tryAgainView
}
