#pragma once

#include "SaleSummary/UseCases/SaleSummaryUseCase.hpp"

namespace quillet {

/// Success, other consultant, already submitted, time-out, no connection, and the generic error, which always
/// applies.
class SaleSummaryUseCaseFactory final : public SaleSummaryUseCaseCreating {
public:
    [[nodiscard]] std::vector<std::unique_ptr<SaleSummaryUseCase>>
    createAllUseCases(const SaleSummaryUseCaseFactoryInput& input) const override;
};

} // namespace quillet
