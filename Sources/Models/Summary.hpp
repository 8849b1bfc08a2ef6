#pragma once

#include "Models/Json/Field.hpp"

#include <cstdint>

namespace quillet {

/// The counters of one checkout, as the back end counts them; nothing checks that they agree with each other.
struct Summary {
    std::uint64_t allItems = 0;
    /// Items not added to the consultant's cart.
    std::uint64_t errorItems = 0;
    std::uint64_t addedItems = 0;
    std::uint64_t allPoints = 0;
    /// Points of the items added.
    std::uint64_t addedPoints = 0;
    std::uint64_t addedProducts = 0;
    /// Products not added.
    std::uint64_t errorProducts = 0;

    bool operator==(const Summary&) const = default;
};

template <>
inline constexpr auto jsonFields<Summary> = std::tuple{
    json::Field{"allItems", &Summary::allItems},
    json::Field{"errorItems", &Summary::errorItems},
    json::Field{"addedItems", &Summary::addedItems},
    json::Field{"allPoints", &Summary::allPoints},
    json::Field{"addedPoints", &Summary::addedPoints},
    json::Field{"addedProducts", &Summary::addedProducts},
    json::Field{"errorProducts", &Summary::errorProducts},
};

} // namespace quillet
