#pragma once

#include "KelCommon/KelAnalytics.hpp"

#include <optional>
#include <string_view>

namespace quillet {

/// The screen views of the sale summary.
class SaleSummaryAnalyticsScreen final : public kel::KelAnalyticsScreenType {
public:
    enum Case { saleSummary, error };

    SaleSummaryAnalyticsScreen(Case value) : case_(value) {}
    /// The case of that name; none for any other text.
    [[nodiscard]] static std::optional<SaleSummaryAnalyticsScreen> fromRawValue(std::string_view rawValue);

    [[nodiscard]] std::string name() const override;
    bool operator==(const SaleSummaryAnalyticsScreen& other) const { return case_ == other.case_; }

private:
    Case case_;
};

} // namespace quillet
