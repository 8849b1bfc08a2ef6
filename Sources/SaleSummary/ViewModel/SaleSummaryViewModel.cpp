#include "SaleSummary/ViewModel/SaleSummaryViewModel.hpp"

#include "SaleSummary/Analytics/SaleSummaryAnalyticsEvent.hpp"
#include "SaleSummary/Analytics/SaleSummaryAnalyticsScreen.hpp"

#include <algorithm>
#include <utility>

namespace quillet {

SaleSummaryViewModel::SaleSummaryViewModel(std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager,
                                           std::shared_ptr<Executable> associateConsultantToCartWorker,
                                           std::shared_ptr<Executable> getOpenOrdersWorker,
                                           std::unique_ptr<SaleSummaryUseCaseCreating> useCasesFactory)
    : analyticsManager_(std::move(analyticsManager)),
      associateConsultantToCartWorker_(std::move(associateConsultantToCartWorker)),
      getOpenOrdersWorker_(std::move(getOpenOrdersWorker)),
      useCasesFactory_(std::move(useCasesFactory)) {}

void SaleSummaryViewModel::setDelegate(std::weak_ptr<SaleSummaryViewModelDelegate> delegate) {
    delegate_ = std::move(delegate);
}

void SaleSummaryViewModel::trackAnalyticsScreen() {
    analyticsManager_->trackScreen(SaleSummaryAnalyticsScreen(SaleSummaryAnalyticsScreen::saleSummary));
}

void SaleSummaryViewModel::trackSendOrdersToCart() {
    analyticsManager_->trackEvent(SaleSummaryAnalyticsEvent(SaleSummaryAnalyticsEvent::sendOrdersToCart));
}

void SaleSummaryViewModel::doRequests() {
    associateConsultantToCartWorker_->execute();
    if (const auto delegate = delegate_.lock()) {
        delegate->startLoading();
    }
}

void SaleSummaryViewModel::tryAgainDoRequests() {
    if (!associateConsultantToCartWorker_->isFinishedSuccessfully()) {
        didFinishAssociate_ = false;
        associateConsultantToCartWorker_->execute();
    }
    if (!getOpenOrdersWorker_->isFinishedSuccessfully()) {
        didFinishGetOpenOrders_ = false;
        getOpenOrdersWorker_->execute();
    }
    if (const auto delegate = delegate_.lock()) {
        delegate->startLoading();
    }
}

void SaleSummaryViewModel::didAssociate(const std::shared_ptr<const OrderResult>& result) {
    didFinishAssociate_ = true;
    associateResult_ = result;
    getOpenOrdersWorker_->execute();
}

void SaleSummaryViewModel::didGetOpenOrders(const std::shared_ptr<const OpenOrdersResult>& result) {
    didFinishGetOpenOrders_ = true;
    getOpenOrdersResult_ = result;
    if (didFinishAssociate_ && didFinishGetOpenOrders_) {
        if (const auto delegate = delegate_.lock()) {
            delegate->stopLoading();
        }
        showContent();
    }
}

void SaleSummaryViewModel::showContent() {
    const auto useCases = useCasesFactory_->createAllUseCases(
        {delegate_, associateResult_, getOpenOrdersResult_, analyticsManager_});
    const auto chosen =
        std::ranges::find_if(useCases, [](const auto& useCase) { return useCase->canShowContent(); });
    if (chosen != useCases.end()) {
        (*chosen)->showContent();
    }
}

} // namespace quillet
