#pragma once

#include "Models/ProductErrorStatus.hpp"
#include "Platform/Json/Decimal.hpp"
#include "Platform/Json/Field.hpp"

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
    platform::Decimal totalPrice;
    /// Points of one unit; absent when the back end sends none.
    std::optional<std::uint64_t> unitPoints;
    /// Points of all units.
    std::uint64_t totalPoints = 0;

    bool operator==(const Product&) const = default;
};

template <>
inline constexpr auto platform::jsonFields<Product> = std::tuple{
    platform::json::Field{"productCode", &Product::productCode},
    platform::json::Field{"description", &Product::description},
    platform::json::Field{"status", &Product::status},
    platform::json::Field{"quantity", &Product::quantity},
    platform::json::Field{"totalPrice", &Product::totalPrice},
    platform::json::Field{"unitPoints", &Product::unitPoints},
    platform::json::Field{"totalPoints", &Product::totalPoints},
};

} // namespace quillet
