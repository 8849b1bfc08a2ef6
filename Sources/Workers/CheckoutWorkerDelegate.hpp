#pragma once

#include "Network/Results/CheckoutResult.hpp"

#include <memory>

namespace quillet {

/// Follows a checkout. Held weakly.
class CheckoutWorkerDelegate {
public:
    virtual ~CheckoutWorkerDelegate() = default;

    /// The request is starting: on every run, on the thread that starts it, before the service is called.
    virtual void willCheckout() = 0;

    /// The outcome: once for each run, on the main queue, as long as the worker is there.
    virtual void didCheckout(const std::shared_ptr<const CheckoutResult>& result) = 0;
};

} // namespace quillet
