#include "SaleSummary/UseCases/SaleSummaryIconDialogUseCases.hpp"

#include "Quillet/QuilletNavigationDelegate.hpp"
#include "Resources/Localization.hpp"
#include "SaleSummary/Analytics/SaleSummaryAnalyticsEvent.hpp"
#include "SaleSummary/ViewModel/SaleSummaryViewModelDelegate.hpp"

#include <utility>

namespace quillet {

namespace {

/// Whether the association was refused with the given code of the back end. The codes come as server errors
/// only: a 422 whose body the client reads as its own mistake does not count.
bool wasRefused(const std::shared_ptr<const OrderResult>& result, std::string_view code) {
    if (!result || result->httpStatusCode != 422 || !result->error) {
        return false;
    }
    const auto* refusal = std::get_if<ServerError>(&*result->error);
    return refusal && refusal->error.message == code;
}

using Navigation = void (QuilletNavigationDelegate::*)();

/// An action that calls the host's navigation, if the screen and the host are still there.
std::function<void()> navigate(const std::weak_ptr<SaleSummaryViewModelDelegate>& delegate,
                               Navigation navigation) {
    return [delegate, navigation] {
        const auto screen = delegate.lock();
        if (const auto host = screen ? screen->navigationDelegate() : nullptr) {
            ((*host).*navigation)();
        }
    };
}

/// The same, after an event has been sent.
std::function<void()> trackThen(const std::shared_ptr<kel::KelAnalyticsManagerType>& analytics,
                                const SaleSummaryAnalyticsEvent& event, std::function<void()> action) {
    return [analytics, event, action = std::move(action)] {
        analytics->trackEvent(event);
        action();
    };
}

} // namespace

bool SaleSummaryOtherRegisteredOrderUseCase::canShowContent() const {
    return wasRefused(associateResult_, "ERROR_CART_OTHER_CONSULTANT");
}

void SaleSummaryOtherRegisteredOrderUseCase::showContent() {
    if (const auto screen = delegate_.lock()) {
        const auto goHome = navigate(delegate_, &QuilletNavigationDelegate::navigateToHome);
        screen->showDialog(
            DialogWithIconPresenter{Localization::anotherConsultantRegisteredOrderEarlier(),
                                    Localization::toAddProductsAskCustomerCreateOrderAgain(),
                                    QStringLiteral("other_consultant"), Localization::shareMagazine()},
            {.didTapButton =
                 trackThen(analyticsManager_, SaleSummaryAnalyticsEvent::registerOrderShareMagazine,
                           navigate(delegate_, &QuilletNavigationDelegate::navigateToShareMagazine)),
             .didTapBackgroundView = goHome,
             .didTapCloseIcon =
                 trackThen(analyticsManager_, SaleSummaryAnalyticsEvent::registerOrderClose, goHome)});
    }
}

bool SaleSummaryCartAlreadySubmittedUseCase::canShowContent() const {
    return wasRefused(associateResult_, "ERROR_CART_ALREADY_SUBMITTED");
}

void SaleSummaryCartAlreadySubmittedUseCase::showContent() {
    if (const auto screen = delegate_.lock()) {
        const auto goHome = navigate(delegate_, &QuilletNavigationDelegate::navigateToHome);
        screen->showDialog(
            DialogWithIconPresenter{Localization::youveRegisteredOrder(),
                                    Localization::orderWasSentToYourCartRemember(),
                                    QStringLiteral("cart_already_submitted"), Localization::goToHomeScreen()},
            {.didTapButton = goHome,
             .didTapBackgroundView = goHome,
             .didTapCloseIcon =
                 trackThen(analyticsManager_, SaleSummaryAnalyticsEvent::registerOrderClose, goHome)});
    }
}

} // namespace quillet
