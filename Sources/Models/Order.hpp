#pragma once

#include "Models/Date.hpp"
#include "Models/Decimal.hpp"
#include "Models/Json/Field.hpp"
#include "Models/OrderItem.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace quillet {

/// One sell-out cart: a customer's order.
struct Order {
    std::uint64_t cartNumber = 0;
    /// The cart's identifier.
    std::string uuid;
    /// The cart's status as the back end names it; never checked against a list.
    std::string status;
    /// The cart's type as the back end names it.
    std::string type;
    Date createdAt;
    std::uint64_t totalRegularItems = 0;
    std::uint64_t totalBenefitItems = 0;
    std::uint64_t totalItems = 0;
    /// Points of the whole cart.
    std::uint64_t totalPoints = 0;
    Decimal total;
    Decimal regularItemsProfit;
    Decimal benefitItemsProfit;
    Decimal totalProfit;
    /// The cycle of the magazine in which the order was made.
    std::string magazineCycle;
    /// The lines, in the order received.
    std::vector<OrderItem> regularItems;
    std::vector<OrderItem> benefitItems;

    bool operator==(const Order&) const = default;
};

template <>
inline constexpr auto jsonFields<Order> = std::tuple{
    json::Field{"cartNumber", &Order::cartNumber},
    json::Field{"cartUuid", &Order::uuid},
    json::Field{"status", &Order::status},
    json::Field{"type", &Order::type},
    json::Field{"createdAt", &Order::createdAt},
    json::Field{"totalRegularItems", &Order::totalRegularItems},
    json::Field{"totalBenefitItems", &Order::totalBenefitItems},
    json::Field{"totalItems", &Order::totalItems},
    json::Field{"totalPoints", &Order::totalPoints},
    json::Field{"cartTotal", &Order::total},
    json::Field{"regularItemsProfit", &Order::regularItemsProfit},
    json::Field{"benefitItemsProfit", &Order::benefitItemsProfit},
    json::Field{"totalProfit", &Order::totalProfit},
    json::Field{"magazineCycle", &Order::magazineCycle},
    json::Field{"regularItems", &Order::regularItems},
    json::Field{"benefitItems", &Order::benefitItems},
};

} // namespace quillet
