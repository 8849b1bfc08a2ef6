#include "Checkout/Analytics/ProductsCheckoutStatusAnalyticsEvent.hpp"

namespace quillet {

std::optional<std::string> ProductsCheckoutStatusAnalyticsEvent::label() const {
    switch (case_) {
    case goToCart:
        return "Go to Cart";
    case expandProductsSent:
        return "Products Sent - Expand";
    case hideProductsSent:
        return "Products Sent - Hide";
    case expandProductsNotSent:
        return "Products Not Sent - Expand";
    case hideProductsNotSent:
        return "Products Not Sent - Hide";
    }
    return std::nullopt;
}

} // namespace quillet
