#pragma once

#include "Checkout/Status/ScrollableView.hpp"
#include "KelCommon/KelAnalytics.hpp"
#include "Views/Loading/LoadingDisplayer.hpp"
#include "Views/Screen/QuickViewController.hpp"

namespace quillet {

class QuilletNavigationDelegate;

/// The one result screen of a checkout, filled in three ways. Its root view is installed by the router. Sets
/// its title and sends its screen view when it is made.
class ProductsCheckoutStatusViewController final : public QuickViewController,
                                                   public ProductsCheckoutStatusViewDelegate,
                                                   public ShippingStatusProductsViewDelegate {
    Q_OBJECT
    Q_PROPERTY(QObject* status READ status CONSTANT FINAL)
    Q_PROPERTY(QObject* loadingView READ loadingView CONSTANT FINAL)

public:
    ProductsCheckoutStatusViewController(std::unique_ptr<LoadingDisplayable> loadingDisplayer,
                                         std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager);
    ~ProductsCheckoutStatusViewController() override;

    void setNavigationDelegate(std::weak_ptr<QuilletNavigationDelegate> navigationDelegate);
    /// Installs the root view; once, before the screen is pushed.
    void setView(std::unique_ptr<ScrollableView> view) { view_ = std::move(view); }
    [[nodiscard]] std::weak_ptr<ProductsCheckoutStatusViewController> weakSelf();

    [[nodiscard]] QUrl viewUrl() const override;

    /// Sends the event, covers the screen, and asks the host to open the cart. The cover stays: the host
    /// takes over.
    void didTapGoToCartButton() override;
    void didExpandProductsSent() override;
    void didHideProductsSent() override;
    void didExpandProductsNotSent() override;
    void didHideProductsNotSent() override;

    [[nodiscard]] QObject* status() const { return view_ ? view_->contentView() : nullptr; }
    [[nodiscard]] QObject* loadingView() const { return &loadingDisplayer_->loadingView(); }

private:
    std::weak_ptr<QuilletNavigationDelegate> navigationDelegate_;
    std::unique_ptr<LoadingDisplayable> loadingDisplayer_;
    std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager_;
    std::unique_ptr<ScrollableView> view_;
};

} // namespace quillet
