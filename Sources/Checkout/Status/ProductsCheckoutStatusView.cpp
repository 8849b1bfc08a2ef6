#include "Checkout/Status/ProductsCheckoutStatusView.hpp"

#include "Resources/Localization.hpp"

#include <utility>

namespace quillet {

ProductsCheckoutStatusView::ProductsCheckoutStatusView(
    Captioned cycleLabel, std::optional<QString> totalAddedProductPointsLabel, ProductsHeaderView headerView,
    std::unique_ptr<ShippingStatusProductsView> shippingStatusProductsView)
    : cycleLabel_(std::move(cycleLabel)),
      totalAddedProductPointsLabel_(std::move(totalAddedProductPointsLabel)),
      headerView_(std::move(headerView)),
      shippingStatusProductsView_(std::move(shippingStatusProductsView)) {}

void ProductsCheckoutStatusView::setDelegate(std::weak_ptr<ProductsCheckoutStatusViewDelegate> delegate) {
    delegate_ = std::move(delegate);
}

QString ProductsCheckoutStatusView::remember() const {
    return Localization::remember();
}

QString ProductsCheckoutStatusView::reminder() const {
    return Localization::youCanKeepCollectingSales();
}

QString ProductsCheckoutStatusView::goToCart() const {
    return Localization::goToCart();
}

QString ProductsCheckoutStatusView::goToCartIdentifier() const {
    return Localization::goToCartButton();
}

void ProductsCheckoutStatusView::tapGoToCart() {
    if (const auto delegate = delegate_.lock()) {
        delegate->didTapGoToCartButton();
    }
}

} // namespace quillet
