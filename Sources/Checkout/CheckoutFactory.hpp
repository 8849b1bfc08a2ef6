#pragma once

#include "Platform/Screens/QuickViewController.hpp"
#include "Quillet/QuilletNavigationDelegate.hpp"
#include "Workers/CheckoutWorkerCreating.hpp"

#include <memory>

namespace quillet {

/// Configures the checkout screen; this flow has nothing to configure.
class CheckoutConfiguring {
public:
    virtual ~CheckoutConfiguring() = default;
};

class CheckoutConfigurator final : public CheckoutConfiguring {};

/// Makes the checkout screen.
class CheckoutCreating {
public:
    virtual ~CheckoutCreating() = default;
    /// A new screen, fully wired, its back button hidden. It checks out once it has loaded. Main thread only.
    [[nodiscard]] virtual std::shared_ptr<platform::QuickViewController> create() const = 0;
};

/// Assembles the checkout: worker, view model, router with its three result factories, and screen.
class CheckoutFactory final : public CheckoutCreating {
public:
    CheckoutFactory(std::unique_ptr<CheckoutWorkerCreating> checkoutWorkerFactory,
                    std::unique_ptr<CheckoutConfiguring> configurator,
                    std::weak_ptr<QuilletNavigationDelegate> navigationDelegate);

    [[nodiscard]] std::shared_ptr<platform::QuickViewController> create() const override;

private:
    std::unique_ptr<CheckoutWorkerCreating> checkoutWorkerFactory_;
    // Passed in but not used: there is nothing to configure.
    std::unique_ptr<CheckoutConfiguring> configurator_;
    std::weak_ptr<QuilletNavigationDelegate> navigationDelegate_;
};

} // namespace quillet
