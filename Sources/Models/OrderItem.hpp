#pragma once

#include "Platform/Json/Decimal.hpp"
#include "Platform/Json/Field.hpp"

#include <cstdint>
#include <string>

namespace quillet {

/// One line of a sell-out cart.
struct OrderItem {
    std::uint64_t productCode = 0;
    /// Where the line came from, as the back end names it.
    std::string origin;
    /// The product's name.
    std::string productDescription;
    /// Points of one unit.
    std::uint64_t unitPoints = 0;
    /// Points of the line.
    std::uint64_t totalPoints = 0;
    /// Price of the line.
    platform::Decimal totalPrice;
    /// Profit on the line.
    platform::Decimal totalProfit;
    bool choosable = false;
    /// Units ordered.
    std::uint64_t amount = 0;
    std::uint64_t magazineAmount = 0;
    /// Price of one unit.
    platform::Decimal unitPrice;
    /// Profit on one unit.
    platform::Decimal unitProfit;
    /// Address of the product's picture; kept as text, never checked.
    std::string imageUrl;
    bool isKit = false;

    bool operator==(const OrderItem&) const = default;
};

template <>
inline constexpr auto platform::jsonFields<OrderItem> = std::tuple{
    platform::json::Field{"productCode", &OrderItem::productCode},
    platform::json::Field{"origin", &OrderItem::origin},
    platform::json::Field{"productDescription", &OrderItem::productDescription},
    platform::json::Field{"unitPoints", &OrderItem::unitPoints},
    platform::json::Field{"totalPoints", &OrderItem::totalPoints},
    platform::json::Field{"totalPrice", &OrderItem::totalPrice},
    platform::json::Field{"totalProfit", &OrderItem::totalProfit},
    platform::json::Field{"choosable", &OrderItem::choosable},
    platform::json::Field{"amount", &OrderItem::amount},
    platform::json::Field{"magazineAmount", &OrderItem::magazineAmount},
    platform::json::Field{"unitPrice", &OrderItem::unitPrice},
    platform::json::Field{"unitProfit", &OrderItem::unitProfit},
    platform::json::Field{"imageUrl", &OrderItem::imageUrl},
    platform::json::Field{"isKit", &OrderItem::isKit},
};

} // namespace quillet
