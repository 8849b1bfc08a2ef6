#pragma once

#include "Models/Response.hpp"
#include "Network/Errors/NetworkErrorParser.hpp"
#include "Network/Session/URLSessionDataTaskCreating.hpp"

#include <expected>
#include <memory>
#include <new>
#include <optional>
#include <utility>

namespace quillet {

/// The `Result` of a call that failed for lack of memory.
template <typename Result>
[[nodiscard]] Result resultWithoutMemory() noexcept {
    return {std::nullopt, platform::URLError::outOfMemory(), 0};
}

/// The result of an exchange: the body decoded as a `Record`, and the classified error.
template <Response Record, typename Result>
[[nodiscard]] Result serviceResult(const NetworkErrorParser& errorParser,
                                   const std::optional<std::string>& data,
                                   const std::optional<platform::HTTPURLResponse>& response,
                                   std::optional<platform::URLError> transportError) noexcept {
    try {
        std::optional<Record> decoded;
        if (auto created = Record::create(data)) {
            decoded = *std::move(created);
        }
        return {std::move(decoded), errorParser.parse(data, response, std::move(transportError)),
                response ? response->statusCode : 0};
    } catch (const std::bad_alloc&) {
        return resultWithoutMemory<Result>();
    }
}

/// Sends the request of a service, decodes the answer and passes a `Result` to the completion, which must not
/// throw. Needs neither the service nor the session to stay alive. Throws std::bad_alloc if the call cannot
/// be started; the completion is not called then.
template <Response Record, typename Result, typename Completion>
void performServiceCall(std::expected<platform::URLRequest, ServiceError> request,
                        const URLSessionDataTaskCreating& session,
                        std::shared_ptr<const HttpErrorThrowable> httpErrorFactory, Completion completion) {
    if (!request) {
        completion(Result{std::nullopt, std::move(request).error(), 0});
        return;
    }
    auto completionHandler =
        [errorParser = NetworkErrorParser(std::move(httpErrorFactory)), done = std::move(completion)](
            const std::optional<std::string>& data, const std::optional<platform::HTTPURLResponse>& response,
            std::optional<platform::URLError> transportError) {
            done(serviceResult<Record, Result>(errorParser, data, response, std::move(transportError)));
        };
    session.dataTask(*request, std::move(completionHandler))->resume();
}

} // namespace quillet
