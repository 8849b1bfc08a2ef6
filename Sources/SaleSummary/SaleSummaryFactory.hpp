#pragma once

#include "Platform/Screens/QuickViewController.hpp"
#include "Quillet/Authorization.hpp"
#include "Quillet/CartForConsultant.hpp"
#include "Quillet/QuilletNavigationDelegate.hpp"

#include <memory>
#include <string>

namespace quillet {

/// Prepares the sale summary screen beyond its assembly; there is nothing to prepare in this flow.
class SaleSummaryConfiguring {
public:
    virtual ~SaleSummaryConfiguring() = default;
};

class SaleSummaryConfigurator final : public SaleSummaryConfiguring {};

/// Makes the module's root screen.
class SaleSummaryFactoryCreating {
public:
    virtual ~SaleSummaryFactoryCreating() = default;
    /// A new, independent screen, ready to be pushed. Main thread only.
    [[nodiscard]] virtual std::shared_ptr<platform::QuickViewController> createViewController() const = 0;
};

/// Assembles the sale summary: workers, view model, router and screen.
class SaleSummaryFactory final : public SaleSummaryFactoryCreating {
public:
    /// `domainUrl` is the gateway's bare host name.
    SaleSummaryFactory(CartForConsultant cart, Authorization authorization, std::string domainUrl,
                       std::unique_ptr<SaleSummaryConfiguring> configurator,
                       std::weak_ptr<QuilletNavigationDelegate> navigationDelegate);

    [[nodiscard]] std::shared_ptr<platform::QuickViewController> createViewController() const override;

private:
    CartForConsultant cart_;
    Authorization authorization_;
    std::string domainUrl_;
    // Passed in but not used: there is nothing to configure.
    std::unique_ptr<SaleSummaryConfiguring> configurator_;
    std::weak_ptr<QuilletNavigationDelegate> navigationDelegate_;
};

} // namespace quillet
