#pragma once

#include "SaleSummary/UseCases/SaleSummaryUseCase.hpp"

namespace quillet {

/// The gateway gave up waiting (504): the calls can be tried again.
class SaleSummaryTimeoutUseCase final : public SaleSummaryAssociationUseCase {
public:
    using SaleSummaryAssociationUseCase::SaleSummaryAssociationUseCase;
    [[nodiscard]] bool canShowContent() const override;
    void showContent() override;
};

/// The device has no network: the calls can be tried again.
class SaleSummaryNoConnectionUseCase final : public SaleSummaryAssociationUseCase {
public:
    using SaleSummaryAssociationUseCase::SaleSummaryAssociationUseCase;
    [[nodiscard]] bool canShowContent() const override;
    void showContent() override;
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
