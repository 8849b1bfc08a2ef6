#pragma once

#include "Quillet/Platform/URLLoading.hpp"

namespace quillet::platform {

/// A call's outcome: body and response, or the error alone.
struct URLSessionOutcome {
    std::optional<std::string> data = std::nullopt;
    std::optional<HTTPURLResponse> response = std::nullopt;
    std::optional<URLError> error = std::nullopt;
};

/// A call as a task hands it to its session.
struct URLSessionExchange {
    URLRequest request;
    URLSessionDataTaskCompletion completionHandler;
};

} // namespace quillet::platform
