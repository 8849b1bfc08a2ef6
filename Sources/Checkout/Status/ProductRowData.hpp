#pragma once

#include "Checkout/Status/ProductView.hpp"

#include <QVariant>

namespace quillet {

/// What a product's row tells the list for one of the roles of ShippingStatusProductsView, worked out anew
/// each time.
[[nodiscard]] QVariant productRowData(const ProductDisplayable& row, int role);

/// The same for a section's head, which has a place for every value of a product's and fills none.
[[nodiscard]] QVariant headRowData(int role);

} // namespace quillet
