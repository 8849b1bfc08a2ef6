#pragma once

#include "KelCommon/KelCommon.hpp"

#include <functional>

namespace quillet {

/// The events of a result screen.
class ProductsCheckoutStatusAnalyticsEvent final : public kel::KelAnalyticsEventType {
public:
    enum Case { goToCart, expandProductsSent, hideProductsSent, expandProductsNotSent, hideProductsNotSent };

    ProductsCheckoutStatusAnalyticsEvent(Case value) : case_(value) {}

    [[nodiscard]] std::string category() const override { return "Quillet - SellOutIntegration"; }
    [[nodiscard]] std::string action() const override { return "My Clients Orders"; }
    [[nodiscard]] std::optional<std::string> label() const override;
    bool operator==(const ProductsCheckoutStatusAnalyticsEvent& other) const { return case_ == other.case_; }

    [[nodiscard]] Case asCase() const { return case_; }

private:
    Case case_;
};

} // namespace quillet

template <>
struct std::hash<quillet::ProductsCheckoutStatusAnalyticsEvent> {
    std::size_t operator()(const quillet::ProductsCheckoutStatusAnalyticsEvent& value) const noexcept {
        return std::hash<int>{}(value.asCase());
    }
};
