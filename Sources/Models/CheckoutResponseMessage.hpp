#pragma once

#include "Platform/Json/TextForm.hpp"

#include <expected>
#include <optional>
#include <string>
#include <string_view>

namespace quillet {

/// The overall verdict of a checkout. Compares and switches like the enumeration inside.
class CheckoutResponseMessage {
public:
    enum Case {
        /// Every product was added to the consultant's cart.
        cartSubmittedSuccess,
        /// Some products were added, some not.
        cartSubmittedPartialSuccess,
        /// No product was added.
        cartSubmittedError,
    };

    /// The verdict received is none of the three.
    struct CodingError {
        /// "Error decoding " and the received text as a list entry: a hyphen, a blank, the text in quotation
        /// marks and a line feed. Unlike a DecodingError it does repeat what was received.
        std::string decoding;

        bool operator==(const CodingError&) const = default;
    };

    constexpr CheckoutResponseMessage(Case value) : case_(value) {}
    constexpr operator Case() const { return case_; }

    /// The verdict that the back end names `text`; letter case counts.
    [[nodiscard]] static std::expected<CheckoutResponseMessage, CodingError> create(std::string_view text);

private:
    Case case_;
};

template <>
struct platform::json::TextForm<CheckoutResponseMessage> {
    static constexpr std::string_view expected = "verdict";
    static std::optional<CheckoutResponseMessage> read(std::string_view text) {
        const auto message = CheckoutResponseMessage::create(text);
        return message ? std::optional(*message) : std::nullopt;
    }
};

} // namespace quillet
