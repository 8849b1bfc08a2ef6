#include "Workers/CheckoutWorker.hpp"

#include <utility>

namespace quillet {

CheckoutWorker::CheckoutWorker(std::unique_ptr<const SellOutCartCheckoutServiceRequestable> service,
                               std::unique_ptr<const DispatchQueuing> dispatchMainQueue)
    : ServiceWorker(std::move(dispatchMainQueue)), service_(std::move(service)) {}

void CheckoutWorker::willCall() {
    if (const auto target = delegate()) {
        target->willCheckout();
    }
}

void CheckoutWorker::call(Completion completion) {
    service_->checkout(std::move(completion));
}

} // namespace quillet
