#pragma once

#include "Checkout/Screen/CheckoutRoutering.hpp"
#include "Checkout/Screen/CheckoutViewModelDelegate.hpp"
#include "Checkout/Screen/CheckoutViewModeling.hpp"
#include "KelCommon/KelCommon.hpp"
#include "Quillet/Workers.hpp"

#include <memory>

namespace quillet {

/// Starts the checkout and decides what follows its answer. Owned by the screen, which it holds weakly; owns
/// the worker, which holds it weakly. Stores no answer. Main thread only.
class CheckoutViewModel final : public CheckoutViewModeling,
                                public CheckoutWorkerDelegate,
                                public std::enable_shared_from_this<CheckoutViewModel> {
public:
    CheckoutViewModel(std::shared_ptr<Executable> checkoutWorker,
                      std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager);

    void setDelegate(std::weak_ptr<CheckoutViewModelDelegate> delegate);
    [[nodiscard]] std::shared_ptr<CheckoutViewModelDelegate> delegate() const { return delegate_.lock(); }
    void setNavigationDelegate(std::weak_ptr<QuilletNavigationDelegate> navigationDelegate);
    [[nodiscard]] std::shared_ptr<QuilletNavigationDelegate> navigationDelegate() const {
        return navigationDelegate_.lock();
    }

    void startCheckout() override;
    void willCheckout() override;
    void didCheckout(const std::shared_ptr<const CheckoutResult>& result) override;

private:
    void showFeedback(const SharedCheckoutResponse& response, std::int64_t httpStatusCode);
    void showGenericError();
    void retry();
    void goHome();

    std::weak_ptr<CheckoutViewModelDelegate> delegate_;
    std::weak_ptr<QuilletNavigationDelegate> navigationDelegate_;
    std::shared_ptr<Executable> checkoutWorker_;
    std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager_;
};

} // namespace quillet
