#pragma once

#include "Checkout/Status/ProductsHeaderView.hpp"
#include "Checkout/Status/ShippingStatusProductsView.hpp"
#include "Views/Labels/Captioned.hpp"

#include <QObject>

#include <memory>
#include <optional>

namespace quillet {

/// Hears of taps on a result. Main thread only.
class ProductsCheckoutStatusViewDelegate {
public:
    virtual ~ProductsCheckoutStatusViewDelegate() = default;
    virtual void didTapGoToCartButton() = 0;
};

/// The content of a result screen: cycle, points sent in total, header card, the two sections, reminder and
/// button.
class ProductsCheckoutStatusView final : public QObject {
    Q_OBJECT
    Q_PROPERTY(quillet::Captioned cycle READ cycle CONSTANT FINAL)
    Q_PROPERTY(QString totalAddedProductPoints READ totalAddedProductPoints CONSTANT FINAL)
    Q_PROPERTY(int icon READ icon CONSTANT FINAL)
    Q_PROPERTY(QString mainMessage READ mainMessage CONSTANT FINAL)
    Q_PROPERTY(QList<quillet::TextWithTagView> counters READ counters CONSTANT FINAL)
    Q_PROPERTY(QAbstractItemModel* products READ products CONSTANT FINAL)
    Q_PROPERTY(QString remember READ remember CONSTANT FINAL)
    Q_PROPERTY(QString reminder READ reminder CONSTANT FINAL)
    Q_PROPERTY(QString goToCart READ goToCart CONSTANT FINAL)
    Q_PROPERTY(QString goToCartIdentifier READ goToCartIdentifier CONSTANT FINAL)

public:
    ProductsCheckoutStatusView(Captioned cycleLabel, std::optional<QString> totalAddedProductPointsLabel,
                               ProductsHeaderView headerView,
                               std::unique_ptr<ShippingStatusProductsView> shippingStatusProductsView);

    void setDelegate(std::weak_ptr<ProductsCheckoutStatusViewDelegate> delegate);

    [[nodiscard]] Captioned cycle() const { return cycleLabel_; }
    /// Empty both where the result has no such label and where there are no points to tell of.
    [[nodiscard]] QString totalAddedProductPoints() const {
        return totalAddedProductPointsLabel_.value_or(QString());
    }
    [[nodiscard]] int icon() const { return static_cast<int>(headerView_.icon); }
    [[nodiscard]] QString mainMessage() const { return headerView_.mainMessage; }
    [[nodiscard]] QList<TextWithTagView> counters() const { return headerView_.textWithTagViews; }
    [[nodiscard]] QAbstractItemModel* products() const { return shippingStatusProductsView_.get(); }
    [[nodiscard]] QString remember() const;
    [[nodiscard]] QString reminder() const;
    [[nodiscard]] QString goToCart() const;
    [[nodiscard]] QString goToCartIdentifier() const;

    Q_INVOKABLE void tapGoToCart();

private:
    std::weak_ptr<ProductsCheckoutStatusViewDelegate> delegate_;
    Captioned cycleLabel_;
    std::optional<QString> totalAddedProductPointsLabel_;
    ProductsHeaderView headerView_;
    std::unique_ptr<ShippingStatusProductsView> shippingStatusProductsView_;
};

} // namespace quillet
