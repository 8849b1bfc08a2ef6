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

/// The `Result` of a call that there was no memory for.
template <typename Result>
[[nodiscard]] Result resultWithoutMemory() noexcept {
    return {std::nullopt, platform::URLError::outOfMemory(), 0};
}

/// What an exchange came to: the answer decoded as a `Record`, and its error classified.
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

/// The road that all three services take: send the request, decode the answer, and hand a `Result` to the
/// completion, which must not throw. Keeps what it needs by itself until then. Throws std::bad_alloc where
/// there is no memory to begin; the completion is not called then.
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
