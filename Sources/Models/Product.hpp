#pragma once

#include "Models/Decimal.hpp"
#include "Models/Json/Field.hpp"
#include "Models/ProductErrorStatus.hpp"

#include <cstdint>
#include <optional>
#include <string>

namespace quillet {

/// One product of a checkout.
struct Product {
    std::uint64_t productCode = 0;
    /// The product's name.
    std::string description;
    ProductErrorStatus status = ProductErrorStatus::none;
    /// Number of units.
    std::uint64_t quantity = 0;
    /// Price of all units.
    Decimal totalPrice;
    /// Points of one unit; absent when the back end sends none.
    std::optional<std::uint64_t> unitPoints;
    /// Points of all units.
    std::uint64_t totalPoints = 0;

    bool operator==(const Product&) const = default;
};

template <>
inline constexpr auto jsonFields<Product> = std::tuple{
    json::Field{"productCode", &Product::productCode}, json::Field{"description", &Product::description},
    json::Field{"status", &Product::status},           json::Field{"quantity", &Product::quantity},
    json::Field{"totalPrice", &Product::totalPrice},   json::Field{"unitPoints", &Product::unitPoints},
    json::Field{"totalPoints", &Product::totalPoints},
};

} // namespace quillet
