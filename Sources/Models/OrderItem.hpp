#pragma once

#include "Models/Decimal.hpp"
#include "Models/Json/Field.hpp"

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
    Decimal totalPrice;
    /// Profit on the line.
    Decimal totalProfit;
    bool choosable = false;
    /// Units ordered.
    std::uint64_t amount = 0;
    std::uint64_t magazineAmount = 0;
    /// Price of one unit.
    Decimal unitPrice;
    /// Profit on one unit.
    Decimal unitProfit;
    /// Address of the product's picture; kept as text, never checked.
    std::string imageUrl;
    bool isKit = false;

    bool operator==(const OrderItem&) const = default;
};

template <>
inline constexpr auto jsonFields<OrderItem> = std::tuple{
    json::Field{"productCode", &OrderItem::productCode},
    json::Field{"origin", &OrderItem::origin},
    json::Field{"productDescription", &OrderItem::productDescription},
    json::Field{"unitPoints", &OrderItem::unitPoints},
    json::Field{"totalPoints", &OrderItem::totalPoints},
    json::Field{"totalPrice", &OrderItem::totalPrice},
    json::Field{"totalProfit", &OrderItem::totalProfit},
    json::Field{"choosable", &OrderItem::choosable},
    json::Field{"amount", &OrderItem::amount},
    json::Field{"magazineAmount", &OrderItem::magazineAmount},
    json::Field{"unitPrice", &OrderItem::unitPrice},
    json::Field{"unitProfit", &OrderItem::unitProfit},
    json::Field{"imageUrl", &OrderItem::imageUrl},
    json::Field{"isKit", &OrderItem::isKit},
};

} // namespace quillet
