#pragma once

#include "Platform/Json/TextForm.hpp"

#include <expected>
#include <optional>
#include <string>
#include <string_view>

namespace quillet {

/// The overall verdict of a checkout.
enum class CheckoutResponseMessage {
    /// Every product was added to the consultant's cart.
    cartSubmittedSuccess,
    /// Some products were added, some not.
    cartSubmittedPartialSuccess,
    /// No product was added.
    cartSubmittedError,
};

/// The verdict received is none of the three. An enumeration cannot nest types, so its error stands beside
/// it.
struct CheckoutResponseMessageCodingError {
    /// "Error decoding " and the received text as a list entry: a hyphen, a blank, the text in quotation
    /// marks and a line feed. Unlike a DecodingError it does repeat what was received.
    std::string decoding;

    bool operator==(const CheckoutResponseMessageCodingError&) const = default;
};

/// The verdict that the back end names `text`; letter case counts.
[[nodiscard]] std::expected<CheckoutResponseMessage, CheckoutResponseMessageCodingError>
checkoutResponseMessage(std::string_view text);

template <>
struct platform::json::TextForm<CheckoutResponseMessage> {
    static constexpr std::string_view expected = "verdict";
    static std::optional<CheckoutResponseMessage> read(std::string_view text) {
        const auto message = checkoutResponseMessage(text);
        return message ? std::optional(*message) : std::nullopt;
    }
};

} // namespace quillet
