#include "Models/CheckoutResponseMessage.hpp"

namespace quillet {

std::expected<CheckoutResponseMessage, CheckoutResponseMessageCodingError>
checkoutResponseMessage(std::string_view text) {
    if (text == "CART_SUBMITTED_SUCCESS") {
        return CheckoutResponseMessage::cartSubmittedSuccess;
    }
    if (text == "CART_SUBMITTED_PARTIAL_SUCCESS") {
        return CheckoutResponseMessage::cartSubmittedPartialSuccess;
    }
    if (text == "CART_SUBMITTED_ERROR") {
        return CheckoutResponseMessage::cartSubmittedError;
    }
    return std::unexpected(
        CheckoutResponseMessageCodingError{"Error decoding - \"" + std::string(text) + "\"\n"});
}

} // namespace quillet
