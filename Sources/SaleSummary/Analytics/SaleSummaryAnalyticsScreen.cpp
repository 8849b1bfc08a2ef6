#include "SaleSummary/Analytics/SaleSummaryAnalyticsScreen.hpp"

namespace quillet {

std::optional<SaleSummaryAnalyticsScreen>
SaleSummaryAnalyticsScreen::fromRawValue(std::string_view rawValue) {
    for (const SaleSummaryAnalyticsScreen screen : {saleSummary, error}) {
        if (screen.name() == rawValue) {
            return screen;
        }
    }
    return std::nullopt;
}

std::string SaleSummaryAnalyticsScreen::name() const {
    switch (case_) {
    case saleSummary:
        return "Pedidos de mis clientes";
    case error:
        return "Error";
    }
    return {};
}

} // namespace quillet
