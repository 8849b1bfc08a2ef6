#include "SaleSummary/UseCases/SaleSummaryUseCaseFactory.hpp"

#include "SaleSummary/UseCases/SaleSummaryIconDialogUseCases.hpp"
#include "SaleSummary/UseCases/SaleSummarySuccessUseCase.hpp"
#include "SaleSummary/UseCases/SaleSummaryTryAgainUseCases.hpp"

namespace quillet {

std::vector<std::unique_ptr<SaleSummaryUseCase>>
SaleSummaryUseCaseFactory::createAllUseCases(const SaleSummaryUseCaseFactoryInput& input) const {
    const auto& [delegate, associated, openOrders, analytics] = input;
    std::vector<std::unique_ptr<SaleSummaryUseCase>> useCases;
    useCases.push_back(
        std::make_unique<SaleSummarySuccessUseCase>(delegate, associated, openOrders, analytics));
    useCases.push_back(
        std::make_unique<SaleSummaryOtherRegisteredOrderUseCase>(associated, delegate, analytics));
    useCases.push_back(
        std::make_unique<SaleSummaryCartAlreadySubmittedUseCase>(associated, delegate, analytics));
    useCases.push_back(std::make_unique<SaleSummaryTimeoutUseCase>(associated, delegate, analytics));
    useCases.push_back(std::make_unique<SaleSummaryNoConnectionUseCase>(associated, delegate, analytics));
    useCases.push_back(std::make_unique<SaleSummaryGenericErrorUseCase>(delegate, analytics));
    return useCases;
}

} // namespace quillet
