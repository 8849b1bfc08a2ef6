#pragma once

#include "Models/Consultant.hpp"
#include "Models/DecodingError.hpp"
#include "Models/Json/Field.hpp"
#include "Models/Order.hpp"
#include "Models/ResponseCodingError.hpp"

#include <expected>
#include <optional>
#include <string>
#include <variant>

namespace quillet {

/// Body of the answer to associating a consultant with a cart.
struct OrderResponse {
    using Error = std::variant<ResponseCodingError, DecodingError>;

    Consultant consultant;
    Order order;

    /// Decodes a reply's body. An absent body is an error; the JSON literal null is an absent response
    /// without an error; an empty body is invalid JSON. May be called on any thread.
    [[nodiscard]] static std::expected<std::optional<OrderResponse>, Error>
    create(const std::optional<std::string>& data);

    bool operator==(const OrderResponse&) const = default;
};

template <>
inline constexpr auto jsonFields<OrderResponse> = std::tuple{
    json::Field{"consultant", &OrderResponse::consultant},
    json::Field{"cart", &OrderResponse::order},
};

} // namespace quillet
