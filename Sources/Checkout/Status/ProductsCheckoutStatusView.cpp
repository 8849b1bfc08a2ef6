#include "Checkout/Status/ProductsCheckoutStatusView.hpp"

#include "Resources/Localization.hpp"

#include <utility>

namespace quillet {

ProductsCheckoutStatusView::ProductsCheckoutStatusView(
    std::unique_ptr<CycleLabel> cycleLabel, std::unique_ptr<PointsLabel> totalAddedProductPointsLabel,
    std::unique_ptr<ProductsHeaderView> headerView,
    std::unique_ptr<ShippingStatusProductsView> shippingStatusProductsView, std::unique_ptr<Coloring> colors,
    std::unique_ptr<ButtonCreating> buttonFactory, std::unique_ptr<Spacing> spacing,
    std::unique_ptr<Sizing> sizing)
    : cycleLabel_(std::move(cycleLabel)),
      totalAddedProductPointsLabel_(std::move(totalAddedProductPointsLabel)),
      headerView_(std::move(headerView)),
      shippingStatusProductsView_(std::move(shippingStatusProductsView)),
      colors_(std::move(colors)),
      buttonFactory_(std::move(buttonFactory)),
      spacing_(std::move(spacing)),
      sizing_(std::move(sizing)) {}

void ProductsCheckoutStatusView::setDelegate(std::weak_ptr<ProductsCheckoutStatusViewDelegate> delegate) {
    delegate_ = std::move(delegate);
}

Button ProductsCheckoutStatusView::goToCartButton() const {
    return buttonFactory_->contained(Localization::goToCart(), Localization::goToCartButton());
}

void ProductsCheckoutStatusView::tapGoToCart() {
    goToCart_.tap(*this, [delegate = delegate_] {
        if (const auto here = delegate.lock()) {
            here->didTapGoToCartButton();
        }
    });
}

} // namespace quillet
