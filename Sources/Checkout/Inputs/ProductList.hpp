#pragma once

#include "Quillet/Checkout.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace quillet {

/// The products of a response, shared rather than copied: a large response would be copied on the main
/// thread.
using SharedProducts = std::shared_ptr<const std::vector<Product>>;

/// Some of a response's products, in their order. It keeps all of them alive.
class ProductList {
public:
    /// Those that were added to the consultant's cart, or those that were not.
    enum class Kind { added, notAdded };

    ProductList(SharedProducts products, Kind kind);

    [[nodiscard]] std::size_t size() const { return positions_.size(); }
    [[nodiscard]] const Product& operator[](std::size_t index) const {
        return (*products_)[positions_[index]];
    }

private:
    SharedProducts products_;
    std::vector<std::uint32_t> positions_;
};

} // namespace quillet
