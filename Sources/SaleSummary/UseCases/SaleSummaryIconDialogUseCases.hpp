#pragma once

#include "SaleSummary/UseCases/SaleSummaryUseCase.hpp"

namespace quillet {

/// Another consultant registered the order first: her customer can be asked for a new one, or the flow ends.
class SaleSummaryOtherRegisteredOrderUseCase final : public SaleSummaryUseCase {
public:
    SaleSummaryOtherRegisteredOrderUseCase(std::optional<OrderResult> associateResult,
                                           std::weak_ptr<SaleSummaryViewModelDelegate> delegate,
                                           std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager);
    [[nodiscard]] bool canShowContent() const override;
    void showContent() override;

private:
    std::optional<OrderResult> associateResult_;
    std::weak_ptr<SaleSummaryViewModelDelegate> delegate_;
    std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager_;
};

/// The order was sent to the cart before: every way out leads home.
class SaleSummaryCartAlreadySubmittedUseCase final : public SaleSummaryUseCase {
public:
    SaleSummaryCartAlreadySubmittedUseCase(std::optional<OrderResult> associateResult,
                                           std::weak_ptr<SaleSummaryViewModelDelegate> delegate,
                                           std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager);
    [[nodiscard]] bool canShowContent() const override;
    void showContent() override;

private:
    std::optional<OrderResult> associateResult_;
    std::weak_ptr<SaleSummaryViewModelDelegate> delegate_;
    std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager_;
};

} // namespace quillet
