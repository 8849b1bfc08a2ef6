#include "Checkout/Inputs/ProductList.hpp"

#include <utility>

namespace quillet {

ProductList::ProductList(SharedProducts products, Kind kind) : products_(std::move(products)) {
    // There are not more positions than products, so this one allocation is enough.
    positions_.reserve(products_->size());
    for (std::size_t position = 0; position < products_->size(); ++position) {
        const bool wasAdded = (*products_)[position].status == ProductErrorStatus::none;
        if (wasAdded == (kind == Kind::added)) {
            positions_.push_back(static_cast<std::uint32_t>(position));
        }
    }
}

} // namespace quillet
