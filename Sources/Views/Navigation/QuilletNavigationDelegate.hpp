#pragma once

namespace quillet {

/// How the module hands navigation back to the host. Implemented by the host, which owns the object through a
/// std::shared_ptr; the module holds it weakly everywhere, and a call to a delegate that is gone is dropped.
/// Called on the main thread, from a tap; the host may take the module off its stack inside the call.
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
