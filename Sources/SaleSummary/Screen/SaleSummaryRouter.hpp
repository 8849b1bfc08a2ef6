#pragma once

#include "Checkout/CheckoutFactory.hpp"
#include "SaleSummary/Screen/SaleSummaryRoutering.hpp"

#include <memory>

namespace quillet {

class SaleSummaryRouter final : public SaleSummaryRoutering {
public:
    explicit SaleSummaryRouter(std::unique_ptr<CheckoutCreating> checkoutFactory);
    void showCheckout(const ViewController* from) override;

private:
    std::unique_ptr<CheckoutCreating> checkoutFactory_;
};

} // namespace quillet
