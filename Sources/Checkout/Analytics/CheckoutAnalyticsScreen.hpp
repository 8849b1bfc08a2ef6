#pragma once

#include "KelCommon/KelCommon.hpp"

namespace quillet {

/// The screen view of the checkout's generic error.
class CheckoutAnalyticsScreen final : public kel::KelAnalyticsScreenType {
public:
    enum Case { error };

    CheckoutAnalyticsScreen(Case value) : case_(value) {}
    [[nodiscard]] std::string name() const override { return "Error"; }
    bool operator==(const CheckoutAnalyticsScreen& other) const { return case_ == other.case_; }

private:
    Case case_;
};

/// The screen view of each result screen.
class ProductsCheckoutStatusAnalyticsScreen final : public kel::KelAnalyticsScreenType {
public:
    [[nodiscard]] std::string name() const override { return "Feedback de produtos"; }
};

} // namespace quillet
