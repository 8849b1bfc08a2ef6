#include "SaleSummary/UseCases/SaleSummaryTryAgainUseCases.hpp"

#include "Quillet/QuilletNavigationDelegate.hpp"
#include "Resources/Localization.hpp"
#include "SaleSummary/Analytics/SaleSummaryAnalyticsScreen.hpp"
#include "SaleSummary/ViewModel/SaleSummaryViewModelDelegate.hpp"
#include "SaleSummary/ViewModel/SaleSummaryViewModeling.hpp"

#include <utility>

namespace quillet {

namespace {

/// The platform's code for "not connected to the internet".
constexpr int notConnectedToInternet = -1009;

/// Sends the error's screen view, screen or no screen, and puts a try-again view on the screen if there is
/// one.
void showTryAgain(kel::KelAnalyticsManagerType& analytics,
                  const std::weak_ptr<SaleSummaryViewModelDelegate>& delegate, TryAgainPresenter presenter,
                  std::function<void(SaleSummaryViewModelDelegate&)> action) {
    analytics.trackScreen(SaleSummaryAnalyticsScreen(SaleSummaryAnalyticsScreen::error));
    if (const auto screen = delegate.lock()) {
        screen->setTryAgainView(
            screen->tryAgainFactory().create(std::move(presenter), [delegate, action = std::move(action)] {
                if (const auto shown = delegate.lock()) {
                    action(*shown);
                }
            }));
        screen->addTryAgainView();
    }
}

/// The two outcomes that can be tried again differ in nothing but their message.
TryAgainPresenter retryPresenter(const QString& message) {
    return {QStringLiteral("surprise_face"), message, QStringLiteral("Actualizar"),
            QStringLiteral("Botón actualizar")};
}

void retry(SaleSummaryViewModelDelegate& screen) {
    screen.removeTryAgainView();
    screen.viewModel().tryAgainDoRequests();
}

} // namespace

bool SaleSummaryTimeoutUseCase::canShowContent() const {
    return associateResult_ && associateResult_->httpStatusCode == 504;
}

void SaleSummaryTimeoutUseCase::showContent() {
    showTryAgain(*analyticsManager_, delegate_, retryPresenter(QStringLiteral("Lo sentimos, algo salió mal")),
                 retry);
}

bool SaleSummaryNoConnectionUseCase::canShowContent() const {
    return associateResult_ && associateResult_->error &&
           platformErrorCode(*associateResult_->error) == notConnectedToInternet;
}

void SaleSummaryNoConnectionUseCase::showContent() {
    showTryAgain(*analyticsManager_, delegate_,
                 retryPresenter(QStringLiteral("Lo sentimos, tu dispositivo está sin conexión a internet")),
                 retry);
}

SaleSummaryGenericErrorUseCase::SaleSummaryGenericErrorUseCase(
    std::weak_ptr<SaleSummaryViewModelDelegate> delegate,
    std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager)
    : delegate_(std::move(delegate)), analyticsManager_(std::move(analyticsManager)) {}

void SaleSummaryGenericErrorUseCase::showContent() {
    showTryAgain(*analyticsManager_, delegate_,
                 {QStringLiteral("sad_face"), Localization::sorryInformationNoLongerAvailable(),
                  Localization::goBack(), Localization::goBackButton()},
                 [](SaleSummaryViewModelDelegate& screen) {
                     if (const auto host = screen.navigationDelegate()) {
                         host->navigateToHome();
                     }
                 });
}

} // namespace quillet
