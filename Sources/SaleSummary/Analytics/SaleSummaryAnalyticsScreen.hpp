#pragma once

#include "KelCommon/KelCommon.hpp"

namespace quillet {

/// The screen views of the sale summary.
class SaleSummaryAnalyticsScreen final : public kel::KelAnalyticsScreenType {
public:
    enum Case { saleSummary, error };

    SaleSummaryAnalyticsScreen(Case value) : case_(value) {}

    [[nodiscard]] std::string name() const override;
    bool operator==(const SaleSummaryAnalyticsScreen& other) const { return case_ == other.case_; }

private:
    Case case_;
};

} // namespace quillet
