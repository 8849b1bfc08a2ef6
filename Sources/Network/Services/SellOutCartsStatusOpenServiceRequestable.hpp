#pragma once

#include "Quillet/Results.hpp"

#include <functional>

namespace quillet {

/// Lists the consultant's open carts. May be called on any thread.
class SellOutCartsStatusOpenServiceRequestable {
public:
    using Completion = std::function<void(OpenOrdersResult)>;

    virtual ~SellOutCartsStatusOpenServiceRequestable() = default;

    /// Returns at once. The completion is called exactly once: on the session's thread, or, for a request
    /// that cannot be formed, on the caller's thread before this returns. It does not need the service to be
    /// there still.
    virtual void getOpenOrders(Completion completion) const = 0;
};

} // namespace quillet
