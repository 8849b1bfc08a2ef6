#include "SaleSummary/Fakes.hpp"
#include "SaleSummary/UseCases/SaleSummaryUseCaseFactory.hpp"

#include <gmock/gmock.h>

namespace quillet::testing {

namespace {

using Lines = std::vector<std::string>;

const std::string other = "ERROR_CART_OTHER_CONSULTANT";
const std::string submitted = "ERROR_CART_ALREADY_SUBMITTED";

/// The first words of what each outcome puts on the screen.
const std::string success = "content";
const std::string otherConsultant = "dialog: other_consultant";
const std::string alreadySubmitted = "dialog: cart_already_submitted";
const std::string timeout = "try again: surprise_face | Lo sentimos, algo";
const std::string noConnection = "try again: surprise_face | Lo sentimos, tu";
const std::string genericError = "try again: sad_face";

OrderResult answered(std::int64_t status, std::optional<ServiceError> error) {
    return {.response = {}, .error = std::move(error), .httpStatusCode = status};
}

ServiceError offline() {
    return transportError(platform::URLError::Code::notConnectedToInternet);
}

ServerError hidden() {
    ServerError error = refusal("other text");
    error.error.response.message = other;
    return error;
}

struct Outcomes : ::testing::Test {
    /// Shows the first outcome that applies to these answers, and returns what came on the screen.
    Lines show(const std::optional<OrderResult>& association, const OpenOrdersResult& openOrders = {}) {
        const auto useCases = SaleSummaryUseCaseFactory().createAllUseCases(
            {screen, association ? shared(*association) : nullptr, shared(openOrders),
             std::make_shared<RecordingAnalytics>(log)});
        (*std::ranges::find_if(useCases, [](const auto& one) {
            return one->canShowContent();
        }))->showContent();
        return taken(log);
    }

    /// What can be touched. The actions outlive the use case that made them.
    std::vector<std::function<void()>> touches() {
        if (const auto tryAgain = std::exchange(screen->tryAgain, nullptr)) {
            return {[tryAgain] { tryAgain->tap(); }};
        }
        const auto& [button, background, closeIcon] = screen->dialog;
        return {button, background, closeIcon};
    }

    const std::vector<OrderResult> oneOfEach{
        {OrderResponse{}, {}, 200}, answered(422, refusal(other)), answered(422, refusal(submitted)),
        answered(504, {}),          answered(0, offline()),        answered(500, HttpStatusCodeError{500})};
    Log log = makeLog();
    std::shared_ptr<RecordingNavigation> host = std::make_shared<RecordingNavigation>(log);
    std::shared_ptr<FakeSaleSummaryScreen> screen = std::make_shared<FakeSaleSummaryScreen>(log, host);
};

} // namespace

TEST_F(Outcomes, AreChosenByTheAssociationAlone) {
    const struct {
        const char* name;
        std::optional<OrderResult> association;
        const std::string& shown;
    } cases[] = {
        {"no result at all", std::nullopt, genericError},
        {"a response", OrderResult{OrderResponse{}, {}, 200}, success},
        {"a response with an error", OrderResult{OrderResponse{}, refusal(other), 422}, success},
        {"neither response nor error", answered(200, {}), genericError},
        {"other consultant", answered(422, refusal(other)), otherConsultant},
        {"already submitted", answered(422, refusal(submitted)), alreadySubmitted},
        {"longer text", answered(422, refusal(submitted + " ")), genericError},
        {"the code one level deeper", answered(422, hidden()), genericError},
        {"as the client's error", answered(422, ClientError{other, other, 422, "/"}), genericError},
        {"another status", answered(409, refusal(other)), genericError},
        {"504 with a refusal", answered(504, refusal(submitted)), timeout},
        {"504 without a connection", answered(504, offline()), timeout},
        {"no connection", answered(0, offline()), noConnection},
        {"no connection with a status", answered(422, offline()), noConnection},
        {"a status that looks like no connection", answered(0, HttpStatusCodeError{-1009}), genericError},
        {"timed out on the way", answered(0, transportError(platform::URLError::Code::timedOut)),
         genericError},
    };
    const OpenOrdersResult openOrders[] = {
        {.response = OpenOrdersResponse{}, .error = {}, .httpStatusCode = 200},
        {.response = {}, .error = HttpStatusCodeError{504}, .httpStatusCode = 504}};
    for (const auto& [name, association, shown] : cases) {
        for (const OpenOrdersResult& open : openOrders) {
            EXPECT_THAT(show(association, open), ::testing::Contains(::testing::StartsWith(shown))) << name;
        }
    }
}

TEST_F(Outcomes, NavigateNowhereWithoutAHost) {
    for (const OrderResult& association : oneOfEach) {
        host = std::make_shared<RecordingNavigation>(log);
        screen = std::make_shared<FakeSaleSummaryScreen>(log, host);
        show(association);
        host.reset();
        for (const auto& touch : touches()) {
            touch();
        }
        EXPECT_THAT(taken(log), ::testing::Each(::testing::Not(::testing::StartsWith("navigate"))));
    }
}

TEST_F(Outcomes, OnlyTrackWhereTheScreenHasGone) {
    const std::string deepLink = event("Register Order", "Deep Linking");
    const std::string close = event("Register Order", "Close");
    const struct {
        Lines shown;
        Lines touched;
    } cases[] = {{{deepLink}, {event("Register Order", "View Orders"), close}},
                 {{}, {event("Register Order", "Share Magazine"), close}},
                 {{}, {close}},
                 {{"screen Error"}, {}},
                 {{"screen Error"}, {}},
                 {{"screen Error"}, {}}};
    for (std::size_t i = 0; i < oneOfEach.size(); ++i) {
        SCOPED_TRACE(i);
        screen = std::make_shared<FakeSaleSummaryScreen>(log, host);
        show(oneOfEach[i]);
        const auto left = touches();
        screen.reset();
        for (const auto& touch : left) {
            touch();
        }
        EXPECT_EQ(taken(log), cases[i].touched);
        EXPECT_EQ(show(oneOfEach[i]), cases[i].shown);
    }
}

} // namespace quillet::testing
