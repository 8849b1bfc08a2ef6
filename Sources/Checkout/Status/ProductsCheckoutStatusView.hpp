#pragma once

#include "Checkout/Status/ProductsHeaderView.hpp"
#include "Checkout/Status/ShippingStatusProductsView.hpp"
#include "Platform/Screens/QueuedTap.hpp"
#include "Views/Labels/CycleLabel.hpp"
#include "Views/Labels/PointsLabel.hpp"
#include "Views/Labels/RememberLabel.hpp"
#include "Views/Tokens/ButtonCreating.hpp"

#include <memory>

namespace quillet {

/// Receives taps on a result screen. Main thread only.
class ProductsCheckoutStatusViewDelegate {
public:
    virtual ~ProductsCheckoutStatusViewDelegate() = default;
    virtual void didTapGoToCartButton() = 0;
};

/// The content of a result screen: cycle, points sent in total, header card, the two sections, reminder and
/// button.
class ProductsCheckoutStatusView final : public quillet::ThemedView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by a result's factory")
    Q_PROPERTY(quillet::Label* cycleLabel READ cycleLabel CONSTANT FINAL)
    Q_PROPERTY(quillet::Label* totalAddedProductPointsLabel READ totalAddedProductPointsLabel CONSTANT FINAL)
    Q_PROPERTY(quillet::ProductsHeaderView* headerView READ headerView CONSTANT FINAL)
    Q_PROPERTY(quillet::ShippingStatusProductsView* products READ products CONSTANT FINAL)
    Q_PROPERTY(quillet::RememberLabel rememberLabel READ rememberLabel NOTIFY themeChanged FINAL)
    Q_PROPERTY(quillet::Button goToCartButton READ goToCartButton CONSTANT FINAL)

public:
    /// Cycle and points may be absent.
    ProductsCheckoutStatusView(std::unique_ptr<CycleLabel> cycleLabel,
                               std::unique_ptr<PointsLabel> totalAddedProductPointsLabel,
                               std::unique_ptr<ProductsHeaderView> headerView,
                               std::unique_ptr<ShippingStatusProductsView> shippingStatusProductsView,
                               std::unique_ptr<Coloring> colors,
                               std::unique_ptr<ButtonCreating> buttonFactory,
                               std::unique_ptr<Spacing> spacing, std::unique_ptr<Sizing> sizing);

    void setDelegate(std::weak_ptr<ProductsCheckoutStatusViewDelegate> delegate);
    [[nodiscard]] std::shared_ptr<ProductsCheckoutStatusViewDelegate> delegate() const {
        return delegate_.lock();
    }

    [[nodiscard]] CycleLabel* cycleLabel() const { return cycleLabel_.get(); }
    [[nodiscard]] PointsLabel* totalAddedProductPointsLabel() const {
        return totalAddedProductPointsLabel_.get();
    }
    [[nodiscard]] ProductsHeaderView* headerView() const { return headerView_.get(); }
    [[nodiscard]] ShippingStatusProductsView* products() const { return shippingStatusProductsView_.get(); }
    [[nodiscard]] RememberLabel rememberLabel() const { return RememberLabel::in(*colors_); }
    [[nodiscard]] Button goToCartButton() const;

    Q_INVOKABLE void tapGoToCart();

private:
    std::weak_ptr<ProductsCheckoutStatusViewDelegate> delegate_;
    std::unique_ptr<CycleLabel> cycleLabel_;
    std::unique_ptr<PointsLabel> totalAddedProductPointsLabel_;
    std::unique_ptr<ProductsHeaderView> headerView_;
    std::unique_ptr<ShippingStatusProductsView> shippingStatusProductsView_;
    std::unique_ptr<Coloring> colors_;
    std::unique_ptr<ButtonCreating> buttonFactory_;
    // Passed in by the factory but not used: the QML that lays out the view reads these tokens from the
    // design system.
    std::unique_ptr<Spacing> spacing_;
    std::unique_ptr<Sizing> sizing_;
    platform::QueuedTap goToCart_;
};

} // namespace quillet
