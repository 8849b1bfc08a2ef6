#include "Checkout/Screen/CheckoutViewController.hpp"

#include "Resources/Localization.hpp"

#include <utility>

namespace quillet {

CheckoutViewController::CheckoutViewController(std::unique_ptr<Coloring> colors,
                                               std::shared_ptr<CheckoutViewModeling> viewModel,
                                               std::unique_ptr<CheckoutRoutering> router,
                                               std::unique_ptr<ViewControllerWrapperCreating> wrapperFactory,
                                               std::unique_ptr<TryAgainCreating> tryAgainFactory,
                                               std::unique_ptr<DialogCreating> dialogFactory,
                                               std::weak_ptr<QuilletNavigationDelegate> navigationDelegate)
    : ModuleViewController(std::move(colors)),
      viewModel_(std::move(viewModel)),
      router_(std::move(router)),
      wrapperFactory_(std::move(wrapperFactory)),
      tryAgainFactory_(std::move(tryAgainFactory)),
      dialogFactory_(std::move(dialogFactory)),
      navigationDelegate_(std::move(navigationDelegate)) {}

CheckoutViewController::~CheckoutViewController() = default;

QUrl CheckoutViewController::viewUrl() const {
    return QUrl(QStringLiteral("qrc:/qt/qml/Quillet/CheckoutPage.qml"));
}

void CheckoutViewController::viewDidLoad() {
    viewModel_->startCheckout();
}

void CheckoutViewController::viewWillAppear() {
    setTitle(Localization::checkout());
}

void CheckoutViewController::startLoading() {
    showLoading();
}

void CheckoutViewController::stopLoading() {
    hideLoading();
}

void CheckoutViewController::showDialog(const DialogPresenter& presenter, DialogActions actions) {
    presentDialog(presenter, std::move(actions));
}

void CheckoutViewController::removeTryAgainView() {
    showTryAgainView(false);
}

std::unique_ptr<ViewController> CheckoutViewController::wrapped() {
    return wrapperFactory_->create(weak_from_this());
}

std::shared_ptr<QuilletNavigationDelegate> CheckoutViewController::navigationDelegate() const {
    return navigationDelegate_.lock();
}

} // namespace quillet
