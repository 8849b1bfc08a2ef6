#pragma once

#include "KelCommon/KelAnalytics.hpp"

#include <functional>
#include <optional>
#include <string_view>

namespace quillet {

/// The screen view of the checkout's generic error.
class CheckoutAnalyticsScreen final : public kel::KelAnalyticsScreenType {
public:
    enum Case { error };

    CheckoutAnalyticsScreen(Case value) : case_(value) {}
    /// The case of that name; none for any other text.
    [[nodiscard]] static std::optional<CheckoutAnalyticsScreen> fromRawValue(std::string_view rawValue) {
        return rawValue == "Error" ? std::optional(CheckoutAnalyticsScreen(error)) : std::nullopt;
    }

    [[nodiscard]] std::string name() const override { return "Error"; }
    bool operator==(const CheckoutAnalyticsScreen& other) const { return case_ == other.case_; }

    [[nodiscard]] Case asCase() const { return case_; }

private:
    Case case_;
};

/// The screen view of each result screen.
class ProductsCheckoutStatusAnalyticsScreen final : public kel::KelAnalyticsScreenType {
public:
    [[nodiscard]] std::string name() const override { return "Feedback de produtos"; }
};

} // namespace quillet

template <>
struct std::hash<quillet::CheckoutAnalyticsScreen> {
    std::size_t operator()(const quillet::CheckoutAnalyticsScreen& value) const noexcept {
        return std::hash<int>{}(value.asCase());
    }
};
