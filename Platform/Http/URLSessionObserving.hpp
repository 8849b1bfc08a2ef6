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

/// Watches the traffic of all sessions that were made with it, for a developer to look at. The request that
/// it is given holds everything that is sent, also the consultant's token: take care where that is shown or
/// kept. Called on the sessions' threads, by several at a time; must return soon. An exception that it throws
/// is dropped.
class URLSessionObserving {
public:
    virtual ~URLSessionObserving() = default;

    /// A call begins, once: its request is about to go to the network. The number is the exchange's own in
    /// this process.
    virtual void willSend(std::uint64_t exchange, const URLRequest& request) = 0;

    /// Called once for each started call, just before its completion.
    virtual void didEnd(std::uint64_t exchange, const URLRequest& request,
                        const URLSessionExchangeEnd& end) = 0;
};

} // namespace quillet::platform
