#pragma once

#include "KelCommon/KelCommon.hpp"
#include "Quillet/Results.hpp"

#include <memory>
#include <utility>
#include <vector>

namespace quillet {

class SaleSummaryViewModelDelegate;

/// One outcome of the sale summary, which decides itself whether it applies. Created anew whenever both calls
/// have answered; holds the screen weakly. Main thread only.
class SaleSummaryUseCase {
public:
    virtual ~SaleSummaryUseCase() = default;
    /// Whether this outcome fits the stored results. No side effects.
    [[nodiscard]] virtual bool canShowContent() const = 0;
    /// Puts this outcome on the screen; nothing is shown if the screen is gone.
    virtual void showContent() = 0;
};

/// Base of the outcomes that depend on the association's result only.
class SaleSummaryAssociationUseCase : public SaleSummaryUseCase {
public:
    SaleSummaryAssociationUseCase(std::shared_ptr<const OrderResult> associateResult,
                                  std::weak_ptr<SaleSummaryViewModelDelegate> delegate,
                                  std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager)
        : associateResult_(std::move(associateResult)),
          delegate_(std::move(delegate)),
          analyticsManager_(std::move(analyticsManager)) {}

protected:
    /// Null before the first answer.
    std::shared_ptr<const OrderResult> associateResult_;
    std::weak_ptr<SaleSummaryViewModelDelegate> delegate_;
    std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager_;
};

/// Results are null before the first answer.
struct SaleSummaryUseCaseFactoryInput {
    std::weak_ptr<SaleSummaryViewModelDelegate> delegate;
    std::shared_ptr<const OrderResult> associateResult;
    std::shared_ptr<const OpenOrdersResult> getOpenOrdersResult;
    std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager;
};

/// Builds the outcomes in the order in which they are asked; the first that applies is shown, and no other.
class SaleSummaryUseCaseCreating {
public:
    virtual ~SaleSummaryUseCaseCreating() = default;
    [[nodiscard]] virtual std::vector<std::unique_ptr<SaleSummaryUseCase>>
    createAllUseCases(const SaleSummaryUseCaseFactoryInput& input) const = 0;
};

} // namespace quillet
