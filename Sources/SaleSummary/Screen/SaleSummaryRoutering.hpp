#pragma once

namespace quillet {

class ViewController;

/// Where the sale summary leads to.
class SaleSummaryRoutering {
public:
    virtual ~SaleSummaryRoutering() = default;
    /// Pushes the checkout on top of the given screen. A null wrapper, or one whose screen is gone, shows
    /// nothing.
    virtual void showCheckout(const ViewController* from) = 0;
};

} // namespace quillet
