#include "Quillet/Checkout.hpp"

namespace quillet {

std::expected<CheckoutResponseMessage, CheckoutResponseMessage::CodingError>
CheckoutResponseMessage::create(std::string_view text) {
    if (text == "CART_SUBMITTED_SUCCESS") {
        return cartSubmittedSuccess;
    }
    if (text == "CART_SUBMITTED_PARTIAL_SUCCESS") {
        return cartSubmittedPartialSuccess;
    }
    if (text == "CART_SUBMITTED_ERROR") {
        return cartSubmittedError;
    }
    return std::unexpected(CodingError{"Error decoding - \"" + std::string(text) + "\"\n"});
}

} // namespace quillet
