#pragma once

#include "Models/Consultant.hpp"
#include "Models/Order.hpp"
#include "Models/ResponseCodingError.hpp"
#include "Platform/Json/DecodingError.hpp"
#include "Platform/Json/Field.hpp"

#include <expected>
#include <optional>
#include <string>
#include <variant>

namespace quillet {

/// Body of the answer to associating a consultant with a cart.
struct OrderResponse {
    using Error = std::variant<ResponseCodingError, platform::DecodingError>;

    Consultant consultant;
    Order order;

    /// Decodes a reply's body. An absent body is an error; the JSON literal null is an absent response
    /// without an error; an empty body is invalid JSON. May be called on any thread.
    [[nodiscard]] static std::expected<std::optional<OrderResponse>, Error>
    create(const std::optional<std::string>& data);

    bool operator==(const OrderResponse&) const = default;
};

template <>
inline constexpr auto platform::jsonFields<OrderResponse> = std::tuple{
    platform::json::Field{"consultant", &OrderResponse::consultant},
    platform::json::Field{"cart", &OrderResponse::order},
};

} // namespace quillet
