#include "Tables.hpp"

#include "SaleSummary/Fakes.hpp"
#include "SaleSummary/UseCases/SaleSummaryUseCaseFactory.hpp"

#include <algorithm>
#include <ostream>

namespace quillet::docs {

namespace {

using Code = platform::URLError::Code;
using namespace testing;

// What the first screen shows for an answer to the association: by asking the outcomes in their order.
std::string shownFor(OrderResult result) {
    const Log log = makeLog();
    const auto screen = std::make_shared<FakeSaleSummaryScreen>(log);
    const auto outcomes = SaleSummaryUseCaseFactory().createAllUseCases(
        {screen, shared(std::move(result)), nullptr, std::make_shared<RecordingAnalytics>(makeLog())});
    const auto first = std::ranges::find_if(outcomes, [](const auto& one) { return one->canShowContent(); });
    (*first)->showContent();
    std::string line = log->back();
    // Cells are separated by bars.
    std::ranges::replace(line, '|', '/');
    return line;
}

std::string check(Code code) {
    switch (code) {
    case Code::unknown:
        return "memory, threads; the message tells more";
    case Code::badURL:
        return "the length of the cart's identifier";
    case Code::timedOut:
        return "the server, or a network that drops packets";
    case Code::cannotFindHost:
        return "the gateway's host name in the build settings, and the name server";
    case Code::cannotConnectToHost:
        return "that the gateway, or the proxy, listens";
    case Code::networkConnectionLost:
        return "the server's log; a POST may have been carried out";
    case Code::notConnectedToInternet:
        return "nothing: the device has no network";
    case Code::cannotDecodeContentData:
        return "the server's compression";
    case Code::cannotParseResponse:
        return "what answers on the port: it is not HTTP";
    case Code::dataLengthExceedsMaximum:
        return "`maximumBodyBytes`, and why the answer is so large";
    case Code::secureConnectionFailed:
        return "TLS versions of both sides; libcurl's TLS library, which the message names";
    case Code::serverCertificateUntrusted:
        return "`caBundleFile`, the certificate's names and dates";
    case Code::cannotOpenFile:
        return "that `caBundleFile` exists and can be read";
    }
    return {};
}

const Code allCodes[] = {Code::unknown,
                         Code::badURL,
                         Code::timedOut,
                         Code::cannotFindHost,
                         Code::cannotConnectToHost,
                         Code::networkConnectionLost,
                         Code::notConnectedToInternet,
                         Code::cannotDecodeContentData,
                         Code::cannotParseResponse,
                         Code::dataLengthExceedsMaximum,
                         Code::secureConnectionFailed,
                         Code::serverCertificateUntrusted,
                         Code::cannotOpenFile};

OrderResult failed(ServiceError error, std::int64_t status) {
    return {.response = {}, .error = std::move(error), .httpStatusCode = status};
}

} // namespace

void printErrorCodes(std::ostream& out) {
    printHead(out, {"`platform::URLError::Code`", "The first screen shows", "Check"});
    for (const Code code : allCodes) {
        printRow(out, {std::to_string(static_cast<int>(code)), shownFor(failed(transportError(code), 0)),
                       check(code)});
    }
}

void printOutcomes(std::ostream& out) {
    printHead(out, {"Answer to the association", "The first screen shows", "Check"});
    printRow(out, {"200 with an order", shownFor({OrderResponse{}, {}, 200}), ""});
    printRow(out, {"200 without a body that decodes", shownFor({{}, {}, 200}),
                   "the body against the records: `OrderResponse::create` tells what is wrong with it"});
    for (const int status : {400, 401, 403, 404, 409, 422}) {
        printRow(out, {std::to_string(status), shownFor(failed(ClientError{"", "", status, ""}, status)),
                       status == 401 ? "token, secret and identity provider"
                                     : "the server's message in the error"});
    }
    for (const int status : {500, 502, 503, 504}) {
        printRow(out, {std::to_string(status), shownFor(failed(HttpStatusCodeError{status}, status)),
                       status == 504 ? "the service behind the gateway" : "the server's log"});
    }
}

} // namespace quillet::docs
