#pragma once

#include "KelCommon/KelCommon.hpp"
#include "Quillet/Workers.hpp"
#include "SaleSummary/UseCases/SaleSummaryUseCase.hpp"
#include "SaleSummary/ViewModel/SaleSummaryViewModelDelegate.hpp"
#include "SaleSummary/ViewModel/SaleSummaryViewModeling.hpp"

#include <memory>

namespace quillet {

/// Runs the two calls of the sale summary in sequence, stores both results and shows the outcome of the first
/// use case that applies. Owned by the screen; owns its workers, which hold it weakly. Main thread only.
class SaleSummaryViewModel final : public SaleSummaryViewModeling,
                                   public AssociateConsultantToCartWorkerDelegate,
                                   public GetOpenOrdersWorkerDelegate {
public:
    SaleSummaryViewModel(std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager,
                         std::shared_ptr<Executable> associateConsultantToCartWorker,
                         std::shared_ptr<Executable> getOpenOrdersWorker,
                         std::unique_ptr<SaleSummaryUseCaseCreating> useCasesFactory);

    void setDelegate(std::weak_ptr<SaleSummaryViewModelDelegate> delegate) override;
    [[nodiscard]] std::shared_ptr<SaleSummaryViewModelDelegate> delegate() const { return delegate_.lock(); }
    void trackAnalyticsScreen() override;
    void doRequests() override;
    void tryAgainDoRequests() override;
    void trackSendOrdersToCart() override;

    /// Requests the open orders next, whatever the association's answer is.
    void didAssociate(const std::shared_ptr<const OrderResult>& result) override;
    /// Shows the outcome once both calls have answered.
    void didGetOpenOrders(const std::shared_ptr<const OpenOrdersResult>& result) override;

private:
    void showContent();

    std::weak_ptr<SaleSummaryViewModelDelegate> delegate_;
    std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager_;
    std::shared_ptr<Executable> associateConsultantToCartWorker_;
    std::shared_ptr<Executable> getOpenOrdersWorker_;
    std::unique_ptr<SaleSummaryUseCaseCreating> useCasesFactory_;
    bool didFinishAssociate_ = false;
    std::shared_ptr<const OrderResult> associateResult_;
    bool didFinishGetOpenOrders_ = false;
    std::shared_ptr<const OpenOrdersResult> getOpenOrdersResult_;
};

} // namespace quillet
