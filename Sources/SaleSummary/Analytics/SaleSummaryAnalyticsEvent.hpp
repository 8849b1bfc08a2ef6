#pragma once

#include "KelCommon/KelCommon.hpp"

namespace quillet {

/// The events of the sale summary. All share one category, which tells the sell-out integration from the rest
/// of the host's events.
class SaleSummaryAnalyticsEvent final : public kel::KelAnalyticsEventType {
public:
    enum Case {
        sendOrdersToCart,
        registerOrderDeepLinking,
        registerOrderViewOrders,
        registerOrderShareMagazine,
        registerOrderClose,
    };

    SaleSummaryAnalyticsEvent(Case value) : case_(value) {}

    [[nodiscard]] std::string category() const override { return "Quillet - SellOutIntegration"; }
    [[nodiscard]] std::string action() const override;
    [[nodiscard]] std::optional<std::string> label() const override;
    bool operator==(const SaleSummaryAnalyticsEvent& other) const { return case_ == other.case_; }

private:
    Case case_;
};

} // namespace quillet
