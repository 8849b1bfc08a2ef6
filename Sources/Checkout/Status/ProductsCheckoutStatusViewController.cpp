#include "Checkout/Status/ProductsCheckoutStatusViewController.hpp"

#include "Checkout/Analytics/CheckoutAnalyticsScreen.hpp"
#include "Checkout/Analytics/ProductsCheckoutStatusAnalyticsEvent.hpp"
#include "Quillet/QuilletNavigationDelegate.hpp"

#include <utility>

namespace quillet {

using Event = ProductsCheckoutStatusAnalyticsEvent;

ProductsCheckoutStatusViewController::ProductsCheckoutStatusViewController(
    std::unique_ptr<LoadingDisplayable> loadingDisplayer,
    std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager)
    : loadingDisplayer_(std::move(loadingDisplayer)), analyticsManager_(std::move(analyticsManager)) {
    setTitle(QStringLiteral("Comentarios sobre los envíos"));
    analyticsManager_->trackScreen(ProductsCheckoutStatusAnalyticsScreen());
}

ProductsCheckoutStatusViewController::~ProductsCheckoutStatusViewController() = default;

void ProductsCheckoutStatusViewController::setNavigationDelegate(
    std::weak_ptr<QuilletNavigationDelegate> navigationDelegate) {
    navigationDelegate_ = std::move(navigationDelegate);
}

std::weak_ptr<ProductsCheckoutStatusViewController> ProductsCheckoutStatusViewController::weakSelf() {
    return wayBackTo(*this);
}

QUrl ProductsCheckoutStatusViewController::viewUrl() const {
    return QUrl(QStringLiteral("qrc:/qt/qml/Quillet/ProductsCheckoutStatusPage.qml"));
}

void ProductsCheckoutStatusViewController::didTapGoToCartButton() {
    analyticsManager_->trackEvent(Event(Event::goToCart));
    loadingDisplayer_->showLoading();
    if (const auto host = navigationDelegate_.lock()) {
        host->navigateToCart();
    }
}

void ProductsCheckoutStatusViewController::didExpandProductsSent() {
    analyticsManager_->trackEvent(Event(Event::expandProductsSent));
}

void ProductsCheckoutStatusViewController::didHideProductsSent() {
    analyticsManager_->trackEvent(Event(Event::hideProductsSent));
}

void ProductsCheckoutStatusViewController::didExpandProductsNotSent() {
    analyticsManager_->trackEvent(Event(Event::expandProductsNotSent));
}

void ProductsCheckoutStatusViewController::didHideProductsNotSent() {
    analyticsManager_->trackEvent(Event(Event::hideProductsNotSent));
}

} // namespace quillet
