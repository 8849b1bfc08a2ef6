#include "SaleSummary/Analytics/SaleSummaryAnalyticsScreen.hpp"

namespace quillet {

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
