#pragma once

#include "Gateway/RequestCheck.hpp"
#include "Gateway/Store.hpp"

namespace quillet::gateway {

/// Makes the consultant the cart's own, if nobody else holds it and it has not been submitted, and shows the
/// cart.
[[nodiscard]] Reply associate(Database& database, const Consultant& consultant, const Call& call,
                              std::string_view target);

/// The consultant's open carts, oldest first.
[[nodiscard]] Reply listOpenCarts(Database& database, const Consultant& consultant);

} // namespace quillet::gateway
