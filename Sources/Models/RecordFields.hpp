#pragma once

#include "Platform/Json/Field.hpp"
#include "Platform/Json/TextForm.hpp"
#include "Quillet/Checkout.hpp"
#include "Quillet/Orders.hpp"

#include <optional>
#include <string_view>
#include <tuple>

namespace quillet {

/// Reads the one date form of all response bodies, yyyy-MM-dd'T'HH:mm:ss.SSSZ, where Z is a sign and four
/// digits (2024-03-01T00:00:00.000-0300 is 03:00 UTC). Gives nothing for any other form, for a day, hour,
/// minute or second that the calendar does not have, and for an offset of more than 18 hours or with more
/// than 59 minutes. Stateless; may be called on any thread.
[[nodiscard]] std::optional<Date> iso8601Full(std::string_view text);

/// The status that the back end names `text`; letter case counts. A name not known here reads as `notFound`,
/// so that a new one never fails a whole response.
[[nodiscard]] ProductErrorStatus productErrorStatus(std::string_view text);

template <>
struct platform::json::TextForm<Date> {
    static constexpr std::string_view expected = "date of the form yyyy-MM-dd'T'HH:mm:ss.SSSZ";
    static std::optional<Date> read(std::string_view text) { return iso8601Full(text); }
};

template <>
inline constexpr auto platform::jsonFields<Cycle> = std::tuple{
    platform::json::Field{"code", &Cycle::code},
    platform::json::Field{"startDate", &Cycle::startDate},
    platform::json::Field{"endDate", &Cycle::endDate},
};

template <>
inline constexpr auto platform::jsonFields<Consultant> = std::tuple{
    platform::json::Field{"id", &Consultant::identifier},
    platform::json::Field{"cycle", &Consultant::cycle},
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

template <>
inline constexpr auto platform::jsonFields<OrderResponse> = std::tuple{
    platform::json::Field{"consultant", &OrderResponse::consultant},
    platform::json::Field{"cart", &OrderResponse::order},
};

template <>
inline constexpr auto platform::jsonFields<OpenOrdersResponse> = std::tuple{
    platform::json::Field{"consultant", &OpenOrdersResponse::consultant},
    platform::json::Field{"carts", &OpenOrdersResponse::openOrders},
};

template <>
struct platform::json::TextForm<ProductErrorStatus> {
    static constexpr std::string_view expected = "text";
    static std::optional<ProductErrorStatus> read(std::string_view text) { return productErrorStatus(text); }
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

template <>
struct platform::json::TextForm<CheckoutResponseMessage> {
    static constexpr std::string_view expected = "verdict";
    static std::optional<CheckoutResponseMessage> read(std::string_view text) {
        const auto message = CheckoutResponseMessage::create(text);
        return message ? std::optional(*message) : std::nullopt;
    }
};

template <>
inline constexpr auto platform::jsonFields<CheckoutResponse> = std::tuple{
    platform::json::Field{"submittedOrderId", &CheckoutResponse::submittedOrderId},
    platform::json::Field{"consultant", &CheckoutResponse::consultant},
    platform::json::Field{"message", &CheckoutResponse::message},
    platform::json::Field{"summary", &CheckoutResponse::summary},
    platform::json::Field{"products", &CheckoutResponse::products},
};

} // namespace quillet
