#pragma once

#include "Network/Services/SellOutCartCheckoutServiceRequestable.hpp"
#include "Workers/CheckoutWorkerDelegate.hpp"
#include "Workers/ServiceWorker.hpp"

namespace quillet {

/// Sends the products to the consultant's cart.
class CheckoutWorker final : public ServiceWorker<CheckoutResult, CheckoutWorkerDelegate> {
public:
    CheckoutWorker(std::unique_ptr<const SellOutCartCheckoutServiceRequestable> service,
                   std::unique_ptr<const DispatchQueuing> dispatchMainQueue);

private:
    void willCall() override;
    void call(Completion completion) override;
    [[nodiscard]] bool hasResponse(const CheckoutResult& result) const override;
    void deliver(CheckoutWorkerDelegate& delegate, const CheckoutResult& result) const override;

    std::unique_ptr<const SellOutCartCheckoutServiceRequestable> service_;
};

} // namespace quillet
