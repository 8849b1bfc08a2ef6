#include "Checkout/Screen/CheckoutViewModel.hpp"
#include "Checkout/Fakes.hpp"
#include "Support/FakeWorkerCollaborators.hpp"
#include "Workers/CheckoutWorker.hpp"

#include <gmock/gmock.h>

namespace quillet::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Lines = std::vector<std::string>;
using enum CheckoutResponseMessage::Case;

const std::string dialog = "dialog: ¡Ups, tuvimos un problema! | Estamos experimentando inestabilidad en "
                           "nuestros sistemas. Por favor, inténtalo de nuevo más tarde. | Actualizar";

/// A view model with its real worker, whose service and main queue are the test's.
struct CheckoutViewModelTest : ::testing::Test {
    CheckoutViewModelTest() {
        worker->setDelegate(viewModel);
        viewModel->setDelegate(screen);
        viewModel->setNavigationDelegate(host);
    }

    void answer(CheckoutResult result) {
        auto complete = std::move(talk->pending.front());
        talk->pending.erase(talk->pending.begin());
        complete(std::move(result));
        queue->drain();
    }

    static CheckoutResult verdict(CheckoutResponseMessage message, std::int64_t status) {
        CheckoutResponse response;
        response.submittedOrderId = "order-7";
        response.message = message;
        return {.checkoutResponse = response, .error = {}, .httpStatusCode = status};
    }
    static CheckoutResult failure() {
        return {.checkoutResponse = {}, .error = HttpStatusCodeError{500}, .httpStatusCode = 500};
    }

    Log log = makeLog();
    std::shared_ptr<Conversation<CheckoutResult>> talk = std::make_shared<Conversation<CheckoutResult>>();
    std::shared_ptr<platform::MainQueue> queue = std::make_shared<platform::MainQueue>();
    std::shared_ptr<CheckoutWorker> worker = std::make_shared<CheckoutWorker>(
        std::make_unique<FakeCheckoutService>(talk), std::make_unique<DrainedQueue>(queue));
    std::shared_ptr<RecordingNavigation> host = std::make_shared<RecordingNavigation>(log);
    std::shared_ptr<FakeCheckoutScreen> screen = std::make_shared<FakeCheckoutScreen>(log, host);
    std::shared_ptr<CheckoutViewModel> viewModel =
        std::make_shared<CheckoutViewModel>(worker, std::make_shared<RecordingAnalytics>(log));
};

} // namespace

TEST_F(CheckoutViewModelTest, RoutesByTheVerdictAndLooksAtTheStatusForErrorsOnly) {
    const Lines all{"all added order-7"};
    const Lines some{"partially added order-7"};
    const Lines none{"none added order-7"};
    const Lines generic{"screen Error", dialog};
    const struct {
        CheckoutResult result;
        Lines shown;
    } cases[] = {
        {verdict(cartSubmittedSuccess, 200), all},
        {verdict(cartSubmittedSuccess, 422), all},
        {verdict(cartSubmittedPartialSuccess, 200), some},
        {verdict(cartSubmittedPartialSuccess, 0), some},
        {verdict(cartSubmittedError, 422), none},
        {verdict(cartSubmittedError, 200), generic},
        {{verdict(cartSubmittedError, 422).checkoutResponse, HttpStatusCodeError{422}, 422}, none},
        {{verdict(cartSubmittedSuccess, 0).checkoutResponse, platform::URLError{}, 0}, all},
        {failure(), generic},
        {{{}, platform::URLError{platform::URLError::Code::notConnectedToInternet, ""}, 0}, generic},
        {{{}, {}, 422}, {}},
    };
    for (const auto& [result, shown] : cases) {
        SCOPED_TRACE(result.httpStatusCode);
        viewModel->startCheckout();
        EXPECT_THAT(taken(log), ElementsAre("startLoading"));
        answer(result);
        Lines expected{"stopLoading"};
        expected.insert(expected.end(), shown.begin(), shown.end());
        EXPECT_EQ(taken(log), expected);
        EXPECT_THAT(talk->pending, IsEmpty());
    }
}

TEST_F(CheckoutViewModelTest, RetriesFromTheDialogsButtonAndLeavesFromItsOtherTouches) {
    viewModel->startCheckout();
    answer(failure());
    log->clear();
    screen->dialog.didTapBackgroundView();
    screen->dialog.didTapCloseIcon();
    EXPECT_THAT(taken(log), ElementsAre("navigateToHome", "navigateToHome"));
    EXPECT_THAT(talk->pending, IsEmpty());

    screen->dialog.didTapButton();
    EXPECT_THAT(taken(log), ElementsAre("removeTryAgainView", "startLoading"));
    answer(failure());
    EXPECT_THAT(taken(log), ElementsAre("stopLoading", "screen Error", dialog));

    host.reset();
    screen->dialog.didTapBackgroundView();
    EXPECT_THAT(taken(log), IsEmpty());
}

TEST_F(CheckoutViewModelTest, OnlyTracksTheErrorOnceItsScreenHasGone) {
    viewModel->startCheckout();
    answer(failure());
    const DialogActions actions = screen->dialog;
    viewModel->startCheckout();
    viewModel->startCheckout();
    log->clear();
    screen.reset();
    answer(verdict(cartSubmittedSuccess, 200));
    EXPECT_THAT(taken(log), IsEmpty());
    answer(failure());
    EXPECT_THAT(taken(log), ElementsAre("screen Error"));
    for (const auto& act : {actions.didTapButton, actions.didTapBackgroundView, actions.didTapCloseIcon}) {
        act();
    }
    EXPECT_THAT(taken(log), IsEmpty());
    EXPECT_THAT(talk->pending, IsEmpty());
}

TEST_F(CheckoutViewModelTest, LeavesADialogThatOutlivesItWithoutAnAction) {
    viewModel->startCheckout();
    answer(failure());
    viewModel->startCheckout();
    log->clear();
    viewModel.reset();
    screen->dialog.didTapButton();
    screen->dialog.didTapCloseIcon();
    answer(failure());
    EXPECT_THAT(taken(log), IsEmpty());
}

} // namespace quillet::testing
