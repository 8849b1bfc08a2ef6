#pragma once

#include "Quillet/Results.hpp"

#include <cstdint>
#include <functional>
#include <string>

namespace quillet {

/// Associates the consultant with the customer's cart. May be called on any thread.
class SellOutCartServiceRequestable {
public:
    using Completion = std::function<void(OrderResult)>;

    virtual ~SellOutCartServiceRequestable() = default;

    /// Returns at once. The completion is called exactly once: on the session's thread, or, for a request
    /// that cannot be formed, on the caller's thread before this returns. It does not need the service to be
    /// there still.
    virtual void associateConsultantToCart(const std::string& cartUUID, std::uint64_t consultantId,
                                           Completion completion) const = 0;
};

} // namespace quillet
