#pragma once

#include "Checkout/Status/ProductsCheckoutStatusView.hpp"
#include "KelCommon/KelCommon.hpp"
#include "Views/Loading/LoadingDisplayer.hpp"
#include "Views/Screen/ModuleViewController.hpp"

namespace quillet {

class QuilletNavigationDelegate;

/// The one result screen of a checkout, filled in three ways. Its root view is installed by the router. Sets
/// its title and sends its screen view when it is made.
class ProductsCheckoutStatusViewController final : public quillet::ModuleViewController,
                                                   public ProductsCheckoutStatusViewDelegate,
                                                   public ShippingStatusProductsViewDelegate {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by factories")
    Q_PROPERTY(quillet::ProductsCheckoutStatusView* status READ status CONSTANT FINAL)

public:
    ProductsCheckoutStatusViewController(std::unique_ptr<LoadingDisplayable> loadingDisplayer,
                                         std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager);
    ~ProductsCheckoutStatusViewController() override;

    void setNavigationDelegate(std::weak_ptr<QuilletNavigationDelegate> navigationDelegate);
    [[nodiscard]] std::shared_ptr<QuilletNavigationDelegate> navigationDelegate() const {
        return navigationDelegate_.lock();
    }
    /// Installs the root view; once, before the screen is pushed.
    void setView(std::unique_ptr<ProductsCheckoutStatusView> view) { view_ = std::move(view); }
    [[nodiscard]] std::weak_ptr<ProductsCheckoutStatusViewController> weakSelf();

    [[nodiscard]] QUrl viewUrl() const override;

    /// Sends the event, shows the loading overlay and asks the host to open the cart. The overlay stays,
    /// because the host takes over.
    void didTapGoToCartButton() override;
    void didExpandProductsSent() override;
    void didHideProductsSent() override;
    void didExpandProductsNotSent() override;
    void didHideProductsNotSent() override;

    [[nodiscard]] ProductsCheckoutStatusView* status() const { return view_.get(); }
    [[nodiscard]] LoadingView* loadingView() override { return &loadingDisplayer_->loadingView(); }

private:
    std::weak_ptr<QuilletNavigationDelegate> navigationDelegate_;
    std::unique_ptr<LoadingDisplayable> loadingDisplayer_;
    std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager_;
    std::unique_ptr<ProductsCheckoutStatusView> view_;
};

} // namespace quillet
