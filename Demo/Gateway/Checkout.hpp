#pragma once

#include "Gateway/Store.hpp"
#include "Gateway/Wire.hpp"

namespace quillet::gateway {

/// Sends the products of the consultant's open carts to her own cart, in one transaction. Carts from the
/// magazine of a future cycle stay open. The lines of all carts are put together by product; a product is
/// added whole or not at all: it must be in the catalogue (else NOT_FOUND), in stock (else UNAVAILABLE) and
/// within the quota that is left to her in this cycle (else QUANTITY_ERROR).
///
/// 200 with a success or partial success, and the carts are submitted; 422 with an error verdict when no
/// product could be added, and 400 with one when nothing was open: both leave the carts as they were, so that
/// it can be tried again.
[[nodiscard]] Reply checkOut(Database& database, const Consultant& consultant);

} // namespace quillet::gateway
