#pragma once

#include "Models/CheckoutResponseMessage.hpp"
#include "Models/Consultant.hpp"
#include "Models/Product.hpp"
#include "Models/Summary.hpp"
#include "Platform/Json/DecodingError.hpp"
#include "Platform/Json/Field.hpp"

#include <expected>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quillet {

/// Body of the answer to a checkout.
struct CheckoutResponse {
    /// The reply had no body at all.
    enum class CodingError { emptyData };
    using Error = std::variant<CodingError, CheckoutResponseMessage::CodingError, platform::DecodingError>;

    /// Identifier of the order that the checkout produced.
    std::string submittedOrderId;
    Consultant consultant;
    /// The overall verdict.
    CheckoutResponseMessage message = CheckoutResponseMessage::cartSubmittedError;
    Summary summary;
    /// Every product of the checkout, in the order received.
    std::vector<Product> products;

    /// Decodes a reply's body. An absent body and an unknown verdict are errors of their own; an empty body
    /// is invalid JSON. May be called on any thread.
    [[nodiscard]] static std::expected<CheckoutResponse, Error>
    create(const std::optional<std::string>& data);

    bool operator==(const CheckoutResponse&) const = default;
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
