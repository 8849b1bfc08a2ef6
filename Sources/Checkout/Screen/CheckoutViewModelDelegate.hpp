#pragma once

#include "Views/Dialogs/Dialog.hpp"
#include "Views/Loading/Loading.hpp"

#include <memory>

namespace quillet {

class CheckoutRoutering;
class QuilletNavigationDelegate;
class ViewController;

/// The checkout screen as its view model sees it; held weakly. Main thread only.
class CheckoutViewModelDelegate : public Loading {
public:
    virtual void showDialog(const DialogPresenter& presenter, DialogActions actions) = 0;
    /// Takes a try-again view off the screen, if it shows one.
    virtual void removeTryAgainView() = 0;

    [[nodiscard]] virtual CheckoutRoutering& router() = 0;
    /// This screen, wrapped weakly, for the router to start from.
    [[nodiscard]] virtual std::unique_ptr<ViewController> wrapped() = 0;
    /// The host's navigation; null once the host let go of it.
    [[nodiscard]] virtual std::shared_ptr<QuilletNavigationDelegate> navigationDelegate() const = 0;
};

} // namespace quillet
