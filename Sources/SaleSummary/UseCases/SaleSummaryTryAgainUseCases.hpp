#pragma once

#include "SaleSummary/UseCases/SaleSummaryUseCase.hpp"

namespace quillet {

/// The gateway gave up waiting (504): the calls can be tried again.
class SaleSummaryTimeoutUseCase final : public SaleSummaryUseCase {
public:
    SaleSummaryTimeoutUseCase(std::optional<OrderResult> associateResult,
                              std::weak_ptr<SaleSummaryViewModelDelegate> delegate,
                              std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager);
    [[nodiscard]] bool canShowContent() const override;
    void showContent() override;

private:
    std::optional<OrderResult> associateResult_;
    std::weak_ptr<SaleSummaryViewModelDelegate> delegate_;
    std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager_;
};

/// The device has no network: the calls can be tried again.
class SaleSummaryNoConnectionUseCase final : public SaleSummaryUseCase {
public:
    SaleSummaryNoConnectionUseCase(std::optional<OrderResult> associateResult,
                                   std::weak_ptr<SaleSummaryViewModelDelegate> delegate,
                                   std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager);
    [[nodiscard]] bool canShowContent() const override;
    void showContent() override;

private:
    std::optional<OrderResult> associateResult_;
    std::weak_ptr<SaleSummaryViewModelDelegate> delegate_;
    std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager_;
};

/// Anything else: the one way out leads home.
class SaleSummaryGenericErrorUseCase final : public SaleSummaryUseCase {
public:
    SaleSummaryGenericErrorUseCase(std::weak_ptr<SaleSummaryViewModelDelegate> delegate,
                                   std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager);
    [[nodiscard]] bool canShowContent() const override { return true; }
    void showContent() override;

private:
    std::weak_ptr<SaleSummaryViewModelDelegate> delegate_;
    std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager_;
};

} // namespace quillet
