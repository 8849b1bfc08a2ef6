#pragma once

#include "Quillet/Checkout.hpp"

#include <memory>

namespace quillet {

class ViewController;

/// A response that whoever shows it keeps alive.
using SharedCheckoutResponse = std::shared_ptr<const CheckoutResponse>;

/// Where a checkout leads to: one route a verdict. Each builds a fresh result screen and pushes it on top of
/// the given screen; if that is gone, the result screen is built but not shown.
class CheckoutRoutering {
public:
    virtual ~CheckoutRoutering() = default;
    virtual void showAllProductsAdded(const ViewController& viewController,
                                      const SharedCheckoutResponse& response) = 0;
    virtual void showProductsPartiallyAdded(const ViewController& viewController,
                                            const SharedCheckoutResponse& response) = 0;
    virtual void showNoProductAdded(const ViewController& viewController,
                                    const SharedCheckoutResponse& response) = 0;
};

} // namespace quillet
