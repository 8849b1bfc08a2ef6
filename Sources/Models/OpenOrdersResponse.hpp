#pragma once

#include "Models/Consultant.hpp"
#include "Models/Order.hpp"
#include "Platform/Json/DecodingError.hpp"
#include "Platform/Json/Field.hpp"

#include <expected>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quillet {

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
    [[nodiscard]] static std::expected<OpenOrdersResponse, Error>
    create(const std::optional<std::string>& data);

    bool operator==(const OpenOrdersResponse&) const = default;
};

template <>
inline constexpr auto platform::jsonFields<OpenOrdersResponse> = std::tuple{
    platform::json::Field{"consultant", &OpenOrdersResponse::consultant},
    platform::json::Field{"carts", &OpenOrdersResponse::openOrders},
};

} // namespace quillet
