#pragma once

#include "Quillet/Checkout.hpp"
#include "Quillet/Errors.hpp"
#include "Quillet/Orders.hpp"

#include <cstdint>
#include <optional>

namespace quillet {

/// The outcome of associating a consultant with a cart. Response and error can both be there, or neither.
struct OrderResult {
    /// The decoded body; absent where there is none or it does not decode, which is no error in itself.
    std::optional<OrderResponse> response;
    std::optional<ServiceError> error;
    /// 0 where no complete answer came.
    std::int64_t httpStatusCode = 0;
};

/// The outcome of asking for the open carts. Response and error can both be there, or neither.
struct OpenOrdersResult {
    /// The decoded body; absent where there is none or it does not decode, which is no error in itself.
    std::optional<OpenOrdersResponse> response;
    std::optional<ServiceError> error;
    /// 0 where no complete answer came.
    std::int64_t httpStatusCode = 0;
};

/// The outcome of a checkout. Response and error can both be there, or neither.
struct CheckoutResult {
    /// The decoded body; absent where there is none or it does not decode, which is no error in itself.
    std::optional<CheckoutResponse> checkoutResponse;
    std::optional<ServiceError> error;
    /// 0 where no complete answer came.
    std::int64_t httpStatusCode = 0;
};

} // namespace quillet
