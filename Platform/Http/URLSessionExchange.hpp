#pragma once

#include "Platform/Http/HTTPURLResponse.hpp"
#include "Quillet/Platform/URLError.hpp"
#include "Quillet/Platform/URLRequest.hpp"

#include <functional>
#include <optional>
#include <string>

namespace quillet::platform {

/// Takes a call's outcome: either body and response, or the transport error alone. The body of a complete
/// answer is always there, if need be empty (as for a 204). Must not throw.
using URLSessionDataTaskCompletion = std::function<void(
    std::optional<std::string> data, std::optional<HTTPURLResponse> response, std::optional<URLError> error)>;

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
