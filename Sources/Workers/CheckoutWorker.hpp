#pragma once

#include "Network/Services/SellOutCartCheckoutServiceRequestable.hpp"
#include "Quillet/Workers.hpp"
#include "Workers/ServiceWorker.hpp"

namespace quillet {

/// Sends the products to the consultant's cart.
class CheckoutWorker final
    : public ServiceWorker<CheckoutResult, &CheckoutResult::checkoutResponse, CheckoutWorkerDelegate,
                           &CheckoutWorkerDelegate::didCheckout> {
public:
    CheckoutWorker(std::unique_ptr<const SellOutCartCheckoutServiceRequestable> service,
                   std::unique_ptr<const DispatchQueuing> dispatchMainQueue);

private:
    void willCall() override;
    void call(Completion completion) override;

    std::unique_ptr<const SellOutCartCheckoutServiceRequestable> service_;
};

} // namespace quillet
