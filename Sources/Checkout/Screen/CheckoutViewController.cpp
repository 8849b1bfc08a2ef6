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
    : colors_(std::move(colors)),
      viewModel_(std::move(viewModel)),
      router_(std::move(router)),
      wrapperFactory_(std::move(wrapperFactory)),
      tryAgainFactory_(std::move(tryAgainFactory)),
      dialogFactory_(std::move(dialogFactory)),
      navigationDelegate_(std::move(navigationDelegate)) {}

CheckoutViewController::~CheckoutViewController() = default;

QUrl CheckoutViewController::viewUrl() const {
    return QUrl(QStringLiteral("qrc:/qt/qml/Quillet/Checkout/CheckoutViewController.qml"));
}

void CheckoutViewController::viewDidLoad() {
    setBackground([this] { return colors_->background(); });
    viewModel_->startCheckout();
}

void CheckoutViewController::viewWillAppear() {
    setTitle(Localization::checkout());
}

QObject* CheckoutViewController::loadingView() {
    if (!loadingView_) {
        loadingView_ = std::make_unique<LoadingView>();
    }
    return loadingView_.get();
}

void CheckoutViewController::startLoading() {
    static_cast<void>(loadingView());
    loadingView_->startLoading();
}

void CheckoutViewController::stopLoading() {
    if (loadingView_) {
        loadingView_->stopLoading();
    }
}

void CheckoutViewController::showDialog(const DialogPresenter& presenter, DialogActions actions) {
    const auto previous = std::move(dialog_);
    dialog_.reset(
        new Dialog(presenter, std::make_shared<ViewAnimatingWrapper>(), whileHere(std::move(actions))));
    Q_EMIT dialogChanged();
}

void CheckoutViewController::removeTryAgainView() {
    tryAgainView_.reset();
}

std::unique_ptr<ViewController> CheckoutViewController::wrapped() {
    return wrapperFactory_->create(weak_from_this());
}

std::shared_ptr<QuilletNavigationDelegate> CheckoutViewController::navigationDelegate() const {
    return navigationDelegate_.lock();
}

} // namespace quillet
