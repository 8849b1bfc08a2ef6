#pragma once

#include "Quillet/Results.hpp"

#include <functional>

namespace quillet {

/// Sends the products of the consultant's open carts to her own shopping cart. May be called on any thread.
class SellOutCartCheckoutServiceRequestable {
public:
    using Completion = std::function<void(CheckoutResult)>;

    virtual ~SellOutCartCheckoutServiceRequestable() = default;

    /// Returns at once. The completion is called exactly once: on the session's thread, or, for a request
    /// that cannot be formed, on the caller's thread before this returns. It does not need the service to be
    /// there still.
    virtual void checkout(Completion completion) const = 0;
};

} // namespace quillet
