#pragma once

namespace quillet {

/// Hands navigation back to the host. The host implements it and owns the object in a std::shared_ptr. The
/// module holds it weakly and drops calls to a destroyed delegate. Called on the main thread from a tap; the
/// host may pop the module's screen within the call.
class QuilletNavigationDelegate {
public:
    virtual ~QuilletNavigationDelegate() = default;
    /// Open the consultant's own shopping cart.
    virtual void navigateToCart() = 0;
    /// Close the module and return to the host's home screen.
    virtual void navigateToHome() = 0;
    /// Open the host's flow for sharing the interactive digital magazine with customers.
    virtual void navigateToShareMagazine() = 0;
};

} // namespace quillet
