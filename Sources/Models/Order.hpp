#pragma once

#include "Models/Date.hpp"
#include "Models/OrderItem.hpp"
#include "Platform/Json/Decimal.hpp"
#include "Platform/Json/Field.hpp"

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
    platform::Decimal total;
    platform::Decimal regularItemsProfit;
    platform::Decimal benefitItemsProfit;
    platform::Decimal totalProfit;
    /// The cycle of the magazine in which the order was made.
    std::string magazineCycle;
    /// The lines, in the order received.
    std::vector<OrderItem> regularItems;
    std::vector<OrderItem> benefitItems;

    bool operator==(const Order&) const = default;
};

template <>
inline constexpr auto platform::jsonFields<Order> = std::tuple{
    platform::json::Field{"cartNumber", &Order::cartNumber},
    platform::json::Field{"cartUuid", &Order::uuid},
    platform::json::Field{"status", &Order::status},
    platform::json::Field{"type", &Order::type},
    platform::json::Field{"createdAt", &Order::createdAt},
    platform::json::Field{"totalRegularItems", &Order::totalRegularItems},
    platform::json::Field{"totalBenefitItems", &Order::totalBenefitItems},
    platform::json::Field{"totalItems", &Order::totalItems},
    platform::json::Field{"totalPoints", &Order::totalPoints},
    platform::json::Field{"cartTotal", &Order::total},
    platform::json::Field{"regularItemsProfit", &Order::regularItemsProfit},
    platform::json::Field{"benefitItemsProfit", &Order::benefitItemsProfit},
    platform::json::Field{"totalProfit", &Order::totalProfit},
    platform::json::Field{"magazineCycle", &Order::magazineCycle},
    platform::json::Field{"regularItems", &Order::regularItems},
    platform::json::Field{"benefitItems", &Order::benefitItems},
};

} // namespace quillet
