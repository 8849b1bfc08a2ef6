#include "Fakes.hpp"
#include "Samples.hpp"
#include "Tables.hpp"

#include "Checkout/Screen/CheckoutViewModel.hpp"
#include "Network/Errors/HttpErrorFactory.hpp"
#include "Network/Errors/NetworkErrorParser.hpp"
#include "SaleSummary/UseCases/SaleSummaryUseCaseFactory.hpp"

#include <algorithm>
#include <ostream>
#include <set>
#include <stdexcept>
#include <tuple>

namespace quillet::docs {

namespace {

using namespace testing;
using Verdict = CheckoutResponseMessage::Case;

// What the first screen shows for an answer to the association: by asking the outcomes in their order.
std::string shownFor(OrderResult result) {
    const Log log = makeLog();
    const auto screen = std::make_shared<FakeSaleSummaryScreen>(log);
    const auto outcomes = SaleSummaryUseCaseFactory().createAllUseCases(
        {screen, shared(std::move(result)), nullptr, std::make_shared<RecordingAnalytics>(makeLog())});
    const auto first = std::ranges::find_if(outcomes, [](const auto& one) { return one->canShowContent(); });
    (*first)->showContent();
    return log->back();
}

// The same for the checkout: what its view model does after the overlay has gone.
std::string shownFor(CheckoutResult result) {
    const Log log = makeLog();
    const auto screen = std::make_shared<FakeCheckoutScreen>(log, std::weak_ptr<QuilletNavigationDelegate>());
    const auto viewModel = std::make_shared<CheckoutViewModel>(
        std::make_shared<FakeExecutable>(log, ""), std::make_shared<RecordingAnalytics>(makeLog()));
    viewModel->setDelegate(screen);
    viewModel->didCheckout(shared(std::move(result)));
    const std::string last = log->back();
    if (last == "stopLoading") {
        return "nothing: the overlay goes";
    }
    return last.ends_with(" added ") ? "result screen: " + last : last;
}

const std::string clientBody = R"({"details":"","error":"","statusCode":0,"path":""})";
const std::string serverBody = R"({"error":{"response":{"statusCode":0,"message":"","error":""},"status":0,
    "message":""},"statusCode":0,"path":""})";

ServiceError classified(int status, const std::string& body) {
    const NetworkErrorParser parser(std::make_shared<HttpErrorFactory>());
    return parser.parse(body, platform::HTTPURLResponse{status}, {}).value();
}

std::string check(int status) {
    switch (status) {
    case 400:
        return "`details`; cart, consultant and country as the host passed them";
    case 401:
        return "access token, identity provider, and the build's signing secret";
    case 403:
        return "whether this consultant may have this cart";
    case 404:
        return "the cart's identifier, and the environment";
    case 409:
    case 422:
        return "`error` and `details`";
    case 504:
        return "the service behind the gateway";
    default:
        return "the server's log";
    }
}

std::string nameOf(Verdict verdict) {
    // No default: a new verdict does not compile before it is told of.
    switch (verdict) {
    case Verdict::cartSubmittedSuccess:
        return "cartSubmittedSuccess";
    case Verdict::cartSubmittedPartialSuccess:
        return "cartSubmittedPartialSuccess";
    case Verdict::cartSubmittedError:
        return "cartSubmittedError";
    }
    return {};
}

} // namespace

std::string shownForError(ServiceError error, std::int64_t status) {
    return shownFor(OrderResult{.response = {}, .error = std::move(error), .httpStatusCode = status});
}

void printOutcomes(std::ostream& out) {
    printHead(out, {"Answer to the association", "Error", "The first screen shows", "Check"});
    printRow(out, {"200 with an order", "none", shownFor(OrderResult{OrderResponse{}, {}, 200}), ""});
    printRow(out, {"200, body does not decode", "none", shownFor(OrderResult{{}, {}, 200}),
                   "what `OrderResponse::create` says of the body, below"});
    for (const int status : {400, 401, 403, 404, 409, 422, 500, 502, 503, 504}) {
        const ServiceError withBody = classified(status, status < 500 ? clientBody : serverBody);
        const ServiceError without = classified(status, "");
        const std::string shown = shownForError(withBody, status);
        if (shown != shownForError(without, status)) {
            throw std::logic_error("the body of an answer decides what is shown: give it a row of its own");
        }
        printRow(out, {std::to_string(status), docs::nameOf(withBody) + " or " + docs::nameOf(without), shown,
                       check(status)});
    }
    const std::string other = "ERROR_CART_OTHER_CONSULTANT";
    const std::string submitted = "ERROR_CART_ALREADY_SUBMITTED";
    ServerError deeper = refusal("");
    deeper.error.response.message = submitted;
    const std::tuple<std::string, ServiceError, int> refusals[] = {
        {"422 as a server error with `" + other + '`', refusal(other), 422},
        {"422 as a server error with `" + submitted + '`', refusal(submitted), 422},
        {"the same with a longer text", refusal(submitted + "_AGAIN"), 422},
        {"the same with the code in `error.response.message`", deeper, 422},
        {"the same as the client's error", ClientError{submitted, submitted, 422, ""}, 422},
        {"the same with status 409", refusal(submitted), 409},
        {"the same with status 504", refusal(submitted), 504},
    };
    for (const auto& [answer, error, status] : refusals) {
        printRow(out, {answer, docs::nameOf(error), shownForError(error, status), "see below"});
    }
    printRow(out, {"any error status with an order", "none that counts",
                   shownFor(OrderResult{OrderResponse{}, refusal(other), 422}), "see above"});
}

void printCheckouts(std::ostream& out) {
    printHead(out, {"Answer to the checkout", "The consultant sees"});
    const auto verdicts =
        valuesBetween<Verdict>(0, 3, [](Verdict verdict) { return !nameOf(verdict).empty(); });
    for (const Verdict verdict : verdicts) {
        for (const int status : {200, 422}) {
            CheckoutResponse response;
            response.message = verdict;
            printRow(out, {'`' + nameOf(verdict) + "`, status " + std::to_string(status),
                           shownFor(CheckoutResult{response, {}, status})});
        }
    }
    printRow(out, {"status 200, body does not decode", shownFor(CheckoutResult{{}, {}, 200})});
    std::set<std::string> shown;
    for (const ServiceError& error : allErrors()) {
        shown.insert(shownFor(CheckoutResult{{}, error, 0}));
    }
    for (const platform::URLError::Code code : allCodes()) {
        shown.insert(shownFor(CheckoutResult{{}, platform::URLError{code, ""}, 0}));
    }
    for (const std::string& one : shown) {
        printRow(out, {"any `ServiceError`, and no body that decodes", one});
    }
}

} // namespace quillet::docs
