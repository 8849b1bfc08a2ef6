#include "SaleSummary/UseCases/SaleSummarySuccessUseCase.hpp"

#include "Quillet/FatalErrorWrapper.hpp"
#include "SaleSummary/Analytics/SaleSummaryAnalyticsEvent.hpp"
#include "SaleSummary/Screen/SaleSummaryView.hpp"
#include "SaleSummary/ViewModel/SaleSummaryViewModelDelegate.hpp"

#include <limits>
#include <utility>

namespace quillet {

SaleSummarySuccessUseCase::SaleSummarySuccessUseCase(
    std::weak_ptr<SaleSummaryViewModelDelegate> delegate, std::shared_ptr<const OrderResult> associateResult,
    std::shared_ptr<const OpenOrdersResult> getOpenOrdersResult,
    std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager)
    : delegate_(std::move(delegate)),
      associateResult_(std::move(associateResult)),
      getOpenOrdersResult_(std::move(getOpenOrdersResult)),
      analyticsManager_(std::move(analyticsManager)) {}

bool SaleSummarySuccessUseCase::canShowContent() const {
    return associateResult_ && associateResult_->response;
}

void SaleSummarySuccessUseCase::showContent() {
    if (!canShowContent()) {
        return;
    }
    auto presenter = createPresenter(associateResult_->response->order);
    if (const auto screen = delegate_.lock()) {
        auto view = screen->contentViewFactory().create(std::move(presenter));
        view->setDelegate(screen->viewDelegate());
        screen->setContentView(std::move(view));
        screen->addContentView();
    }
    showOrderRegistered();
}

SaleSummaryPresenter SaleSummarySuccessUseCase::createPresenter(const Order& highlightedOrder) const {
    return {
        .headerPresenter = {PointsInProgressPresenter(pointsInProgress()), cycle()},
        .highlightedOrderPresenter = {OrderPointsPresenter(highlightedOrder.totalPoints), cycle(),
                                      highlightedOrder.createdAt, highlightedOrder.regularItems.size()},
    };
}

std::optional<Cycle> SaleSummarySuccessUseCase::cycle() const {
    if (const auto& cycle = associateResult_->response->consultant.cycle) {
        return cycle;
    }
    if (getOpenOrdersResult_ && getOpenOrdersResult_->response) {
        return getOpenOrdersResult_->response->consultant.cycle;
    }
    return std::nullopt;
}

std::uint64_t SaleSummarySuccessUseCase::pointsInProgress() const {
    std::uint64_t sum = 0;
    if (getOpenOrdersResult_ && getOpenOrdersResult_->response) {
        for (const Order& order : getOpenOrdersResult_->response->openOrders) {
            if (__builtin_add_overflow(sum, order.totalPoints, &sum)) {
                FatalErrorWrapper::fatalErrorClosure("the points in progress exceed 64 bits", __FILE_NAME__,
                                                     __LINE__);
                return std::numeric_limits<std::uint64_t>::max();
            }
        }
    }
    return sum;
}

void SaleSummarySuccessUseCase::showOrderRegistered() {
    const auto track = [analytics = analyticsManager_](const SaleSummaryAnalyticsEvent& event) {
        return [analytics, event] { analytics->trackEvent(event); };
    };
    track(SaleSummaryAnalyticsEvent::registerOrderDeepLinking)();
    if (const auto screen = delegate_.lock()) {
        screen->showDialog(
            DialogPresenter{QStringLiteral("¡Pedido del cliente registrado y con estatus en curso!"),
                            QStringLiteral("El pedido enviado por WhatsApp, fue registrado con éxito."),
                            QStringLiteral("Ver Pedidos")},
            {.didTapButton = track(SaleSummaryAnalyticsEvent::registerOrderViewOrders),
             .didTapBackgroundView = [] {},
             .didTapCloseIcon = track(SaleSummaryAnalyticsEvent::registerOrderClose)});
    }
}

} // namespace quillet
