#pragma once

#include "Quillet/Export.hpp"
#include "Quillet/Platform/CodingErrors.hpp"
#include "Quillet/Platform/Decimal.hpp"

#include <chrono>
#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quillet {

/// A point in time, UTC, exact to the millisecond that the wire carries. Leap seconds are not counted.
using Date = std::chrono::sys_time<std::chrono::milliseconds>;

/// A sales cycle with its period.
struct Cycle {
    /// The cycle's code; the screens show only its last two digits.
    std::uint64_t code = 0;
    /// The first moment of the cycle.
    Date startDate;
    /// The last moment of the cycle.
    Date endDate;

    /// The last two decimal digits of the cycle's code: 202405 gives "05". A code of fewer than two digits
    /// goes to the fatal-error hook; if a replaced hook returns, the one digit there is.
    [[nodiscard]] QUILLET_BACKEND_API static std::string onlyCode(const Cycle& cycle);

    bool operator==(const Cycle&) const = default;
};

/// The consultant as the back end reports her.
struct Consultant {
    /// The consultant's code.
    std::uint64_t identifier = 0;
    /// Her current sales cycle; absent when the back end sends none.
    std::optional<Cycle> cycle;

    bool operator==(const Consultant&) const = default;
};

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

/// A success response that should have had a body had none.
enum class ResponseCodingError { emptyData };

[[nodiscard]] inline std::string description(ResponseCodingError error) {
    return "The operation couldn’t be completed. (Quillet.ResponseCodingError error " +
           std::to_string(static_cast<int>(error)) + ".)";
}

/// Body of the answer to associating a consultant with a cart.
struct OrderResponse {
    using Error = std::variant<ResponseCodingError, platform::DecodingError>;

    Consultant consultant;
    Order order;

    /// Decodes a reply's body. An absent body is an error; the JSON literal null is an absent response
    /// without an error; an empty body is invalid JSON. May be called on any thread.
    [[nodiscard]] QUILLET_BACKEND_API static std::expected<std::optional<OrderResponse>, Error>
    create(const std::optional<std::string>& data);

    bool operator==(const OrderResponse&) const = default;
};

/// Body of the list of a consultant's open carts.
struct OpenOrdersResponse {
    /// The reply had no body at all.
    enum class CodingError { emptyData };
    using Error = std::variant<CodingError, platform::DecodingError>;

    Consultant consultant;
    /// In the order received.
    std::vector<Order> openOrders;

    /// Decodes a reply's body. An absent body is an error of its own; an empty one is invalid JSON. May be
    /// called on any thread.
    [[nodiscard]] QUILLET_BACKEND_API static std::expected<OpenOrdersResponse, Error>
    create(const std::optional<std::string>& data);

    bool operator==(const OpenOrdersResponse&) const = default;
};

} // namespace quillet
