#include "Platform/Http/Session/CallReport.hpp"

#include <atomic>

namespace quillet::platform {

namespace {

std::atomic<std::uint64_t> callCount = 0;

} // namespace

CallReport::CallReport(std::chrono::steady_clock::time_point start) : number_(++callCount), start_(start) {}

void CallReport::willSend(const URLSessionConfiguration& configuration, const URLRequest& request) const {
    try {
        if (configuration.observer) {
            configuration.observer->willSend(number_, request);
        }
    } catch (...) {
        // An observer's exception must not affect the call.
    }
}

void CallReport::didEnd(const URLSessionConfiguration& configuration, const URLRequest& request,
                        const URLSessionOutcome& outcome) const {
    try {
        const auto duration =
            std::chrono::duration_cast<std::chrono::milliseconds>(configuration.clock->now() - start_);
        const std::int64_t status = outcome.response ? outcome.response->statusCode : 0;
        if (configuration.observer) {
            configuration.observer->didEnd(
                number_, request,
                {status, outcome.error ? std::optional(outcome.error->code) : std::nullopt, duration});
        }
        if (configuration.log) {
            configuration.log({.method = request.httpMethod.value_or("GET"),
                               .path = request.url.pathAndQuery,
                               .statusCode = status,
                               .duration = duration,
                               .bodyBytes = outcome.data ? outcome.data->size() : 0,
                               .error = outcome.error});
        }
    } catch (...) {
        // Nor must the log's, or a lack of memory.
    }
}

std::string description(const LoggedCall& call) {
    const auto end = call.error
                         ? "failed: " + call.error->message
                         : std::to_string(call.statusCode) + ", " + std::to_string(call.bodyBytes) + " bytes";
    return call.method + " " + call.path + " " + end + ", " + std::to_string(call.duration.count()) + " ms";
}

} // namespace quillet::platform
