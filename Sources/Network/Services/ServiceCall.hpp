#pragma once

#include "Network/Errors/NetworkErrorParser.hpp"
#include "Network/Session/URLSessionDataTaskCreating.hpp"

#include <expected>
#include <memory>
#include <optional>
#include <utility>

namespace quillet {

/// The road that all three services take: send the request, decode the answer as a `Response`, classify its
/// error, and hand a `Result` to the completion. Keeps what it needs by itself until then.
template <typename Response, typename Result, typename Completion>
void performServiceCall(std::expected<URLRequest, ServiceError> request,
                        const URLSessionDataTaskCreating& session,
                        std::shared_ptr<const HttpErrorThrowable> httpErrorFactory, Completion completion) {
    if (!request) {
        completion(Result{std::nullopt, std::move(request).error(), 0});
        return;
    }
    auto completionHandler = [errorParser = NetworkErrorParser(std::move(httpErrorFactory)),
                              done = std::move(completion)](const std::optional<std::string>& data,
                                                            const std::optional<HTTPURLResponse>& response,
                                                            std::optional<URLError> transportError) mutable {
        std::optional<Response> decoded;
        if (auto record = Response::create(data)) {
            decoded = *std::move(record);
        }
        done(Result{std::move(decoded), errorParser.parse(data, response, std::move(transportError)),
                    response ? response->statusCode : 0});
    };
    session.dataTask(*request, std::move(completionHandler))->resume();
}

} // namespace quillet
