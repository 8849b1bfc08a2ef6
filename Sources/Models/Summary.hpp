#pragma once

#include "Platform/Json/Field.hpp"

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
inline constexpr auto platform::jsonFields<Summary> = std::tuple{
    platform::json::Field{"allItems", &Summary::allItems},
    platform::json::Field{"errorItems", &Summary::errorItems},
    platform::json::Field{"addedItems", &Summary::addedItems},
    platform::json::Field{"allPoints", &Summary::allPoints},
    platform::json::Field{"addedPoints", &Summary::addedPoints},
    platform::json::Field{"addedProducts", &Summary::addedProducts},
    platform::json::Field{"errorProducts", &Summary::errorProducts},
};

} // namespace quillet
