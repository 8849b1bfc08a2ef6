#pragma once

#include "Quillet/Checkout.hpp"

namespace quillet {

class ViewController;

/// Where a checkout leads to: one route a verdict. Each builds a fresh result screen and pushes it on top of
/// the given screen; if that is gone, the result screen is built but not shown.
class CheckoutRoutering {
public:
    virtual ~CheckoutRoutering() = default;
    virtual void showAllProductsAdded(const ViewController& viewController,
                                      const CheckoutResponse& response) = 0;
    virtual void showProductsPartiallyAdded(const ViewController& viewController,
                                            const CheckoutResponse& response) = 0;
    virtual void showNoProductAdded(const ViewController& viewController,
                                    const CheckoutResponse& response) = 0;
};

} // namespace quillet
