#include "SaleSummary/Analytics/SaleSummaryAnalyticsEvent.hpp"

namespace quillet {

std::string SaleSummaryAnalyticsEvent::action() const {
    return case_ == sendOrdersToCart ? "My Clients Orders" : "Register Order";
}

std::optional<std::string> SaleSummaryAnalyticsEvent::label() const {
    switch (case_) {
    case sendOrdersToCart:
        return "Send Orders to Cart - Click";
    case registerOrderDeepLinking:
        return "Deep Linking";
    case registerOrderViewOrders:
        return "View Orders";
    case registerOrderShareMagazine:
        return "Share Magazine";
    case registerOrderClose:
        return "Close";
    }
    return std::nullopt;
}

} // namespace quillet
