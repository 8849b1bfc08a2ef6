#pragma once

namespace quillet {

/// The checkout's view model as its screen sees it. Main thread only.
class CheckoutViewModeling {
public:
    virtual ~CheckoutViewModeling() = default;
    /// Starts the checkout and returns at once; the answer finds its own way to the screen.
    virtual void startCheckout() = 0;
};

} // namespace quillet
