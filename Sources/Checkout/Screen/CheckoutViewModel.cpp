#include "Checkout/Screen/CheckoutViewModel.hpp"

#include "Checkout/Analytics/CheckoutAnalyticsScreen.hpp"
#include "Checkout/Screen/CheckoutRoutering.hpp"
#include "Quillet/QuilletNavigationDelegate.hpp"
#include "Resources/Localization.hpp"
#include "Views/Screen/ViewController.hpp"

#include <utility>

namespace quillet {

namespace {

/// The status with which the back end says that it read the order and could add no product of it.
constexpr std::int64_t unprocessableEntity = 422;

} // namespace

CheckoutViewModel::CheckoutViewModel(std::shared_ptr<Executable> checkoutWorker,
                                     std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager)
    : checkoutWorker_(std::move(checkoutWorker)), analyticsManager_(std::move(analyticsManager)) {}

void CheckoutViewModel::setDelegate(std::weak_ptr<CheckoutViewModelDelegate> delegate) {
    delegate_ = std::move(delegate);
}

void CheckoutViewModel::setNavigationDelegate(std::weak_ptr<QuilletNavigationDelegate> navigationDelegate) {
    navigationDelegate_ = std::move(navigationDelegate);
}

void CheckoutViewModel::startCheckout() {
    checkoutWorker_->execute();
}

void CheckoutViewModel::willCheckout() {
    if (const auto screen = delegate_.lock()) {
        screen->startLoading();
    }
}

void CheckoutViewModel::didCheckout(const std::shared_ptr<const CheckoutResult>& result) {
    if (const auto screen = delegate_.lock()) {
        screen->stopLoading();
    }
    if (result->checkoutResponse) {
        showFeedback({result, &*result->checkoutResponse}, result->httpStatusCode);
    } else if (result->error) {
        showGenericError();
    }
}

void CheckoutViewModel::showFeedback(const SharedCheckoutResponse& response, std::int64_t httpStatusCode) {
    using Route = void (CheckoutRoutering::*)(const ViewController&, const SharedCheckoutResponse&);
    const auto show = [&](Route route) {
        if (const auto screen = delegate_.lock()) {
            const auto origin = screen->wrapped();
            (screen->router().*route)(*origin, response);
        }
    };
    switch (response->message) {
    case CheckoutResponseMessage::cartSubmittedSuccess:
        return show(&CheckoutRoutering::showAllProductsAdded);
    case CheckoutResponseMessage::cartSubmittedPartialSuccess:
        return show(&CheckoutRoutering::showProductsPartiallyAdded);
    case CheckoutResponseMessage::cartSubmittedError:
        return httpStatusCode == unprocessableEntity ? show(&CheckoutRoutering::showNoProductAdded)
                                                     : showGenericError();
    }
}

void CheckoutViewModel::showGenericError() {
    analyticsManager_->trackScreen(CheckoutAnalyticsScreen(CheckoutAnalyticsScreen::error));
    if (const auto screen = delegate_.lock()) {
        const auto act = [self = weak_from_this()](void (CheckoutViewModel::*action)()) {
            return [self, action] {
                if (const auto viewModel = self.lock()) {
                    ((*viewModel).*action)();
                }
            };
        };
        screen->showDialog({Localization::whoopsWeHadAProblem(), Localization::weAreExperiencingInstability(),
                            Localization::update()},
                           {.didTapButton = act(&CheckoutViewModel::retry),
                            .didTapBackgroundView = act(&CheckoutViewModel::goHome),
                            .didTapCloseIcon = act(&CheckoutViewModel::goHome)});
    }
}

void CheckoutViewModel::retry() {
    if (const auto screen = delegate_.lock()) {
        screen->removeTryAgainView();
        checkoutWorker_->execute();
    }
}

void CheckoutViewModel::goHome() {
    const auto screen = delegate_.lock();
    if (const auto host = screen ? screen->navigationDelegate() : nullptr) {
        host->navigateToHome();
    }
}

} // namespace quillet
