#pragma once

#include "SaleSummary/UseCases/SaleSummaryUseCase.hpp"

namespace quillet {

/// Another consultant registered the order first: her customer can be asked for a new one, or the flow ends.
class SaleSummaryOtherRegisteredOrderUseCase final : public SaleSummaryAssociationUseCase {
public:
    using SaleSummaryAssociationUseCase::SaleSummaryAssociationUseCase;
    [[nodiscard]] bool canShowContent() const override;
    void showContent() override;
};

/// The order was sent to the cart before: every way out leads home.
class SaleSummaryCartAlreadySubmittedUseCase final : public SaleSummaryAssociationUseCase {
public:
    using SaleSummaryAssociationUseCase::SaleSummaryAssociationUseCase;
    [[nodiscard]] bool canShowContent() const override;
    void showContent() override;
};

} // namespace quillet
