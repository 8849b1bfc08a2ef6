#include "Quillet/Checkout.hpp"

#include "Models/RecordFields.hpp"
#include "Platform/Json/Decoder.hpp"

namespace quillet {

namespace {

/// The verdict alone, as received.
struct ReceivedVerdict {
    std::string message;
};

} // namespace

template <>
inline constexpr auto platform::jsonFields<ReceivedVerdict> =
    std::tuple{platform::json::Field{"message", &ReceivedVerdict::message}};

std::expected<CheckoutResponse, CheckoutResponse::Error>
CheckoutResponse::create(const std::optional<std::string>& data) {
    if (!data) {
        return std::unexpected(CodingError::emptyData);
    }
    auto response = platform::json::decode<CheckoutResponse>(*data);
    if (!response && response.error().path == "message") {
        // A text that is no verdict has an error of its own, which repeats that text, as decoding errors
        // never do.
        const auto received = platform::json::decode<ReceivedVerdict>(*data);
        if (received) {
            return std::unexpected(CheckoutResponseMessage::create(received->message).error());
        }
    }
    return response;
}

} // namespace quillet
