#pragma once

#include "Quillet/Platform/URLError.hpp"
#include "Quillet/Platform/URLRequest.hpp"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace quillet::platform {

/// The head of a complete answer.
struct HTTPURLResponse {
    std::int64_t statusCode = 0;

    bool operator==(const HTTPURLResponse&) const = default;
};

/// Takes a call's outcome: either body and response, or the transport error alone. The body of a complete
/// answer is always there, if need be empty (as for a 204). Must not throw.
using URLSessionDataTaskCompletion = std::function<void(
    std::optional<std::string> data, std::optional<HTTPURLResponse> response, std::optional<URLError> error)>;

/// Answers calls in place of the network, as a test needs it. It also has to end calls that take longer than
/// the request's time-out.
class URLLoading {
public:
    virtual ~URLLoading() = default;

    /// Called once for each started call, on the thread that starts it. Calls `completion` exactly once, now
    /// or later, on any thread.
    virtual void load(const URLRequest& request, URLSessionDataTaskCompletion completion) = 0;
};

} // namespace quillet::platform
