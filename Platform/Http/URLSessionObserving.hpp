#pragma once

#include "Platform/Http/URLError.hpp"
#include "Platform/Http/URLRequest.hpp"

#include <chrono>
#include <cstdint>
#include <optional>

namespace quillet::platform {

/// How one exchange ended.
struct URLSessionExchangeEnd {
    /// Of a complete answer; 0 where there is none.
    std::int64_t statusCode = 0;
    /// Absent for a complete answer, whatever its status.
    std::optional<URLError::Code> errorCode;
    /// From the start of the call, by the session's clock.
    std::chrono::milliseconds duration{0};
};

/// Observes the traffic of all sessions whose configuration holds it, for diagnostics. The request includes
/// the consultant's token, so it must not be shown or stored carelessly. Called on the sessions' threads,
/// possibly concurrently; must return quickly. Exceptions that it throws are dropped.
class URLSessionObserving {
public:
    virtual ~URLSessionObserving() = default;

    /// Called once for each call, before its request is sent. The number identifies the exchange in this
    /// process.
    virtual void willSend(std::uint64_t exchange, const URLRequest& request) = 0;

    /// Called once for each started call, just before its completion.
    virtual void didEnd(std::uint64_t exchange, const URLRequest& request,
                        const URLSessionExchangeEnd& end) = 0;
};

} // namespace quillet::platform
