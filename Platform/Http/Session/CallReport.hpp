#pragma once

#include "Platform/Http/URLSessionExchange.hpp"
#include "Quillet/Platform/URLSessionConfiguration.hpp"

#include <chrono>
#include <cstdint>

namespace quillet::platform {

/// Reports one call to the observer and the log of its session's configuration. Exceptions of these are
/// dropped.
class CallReport {
public:
    /// `start` is the call's start by the configuration's clock.
    explicit CallReport(std::chrono::steady_clock::time_point start);

    void willSend(const URLSessionConfiguration& configuration, const URLRequest& request) const;
    void didEnd(const URLSessionConfiguration& configuration, const URLRequest& request,
                const URLSessionOutcome& outcome) const;

private:
    std::uint64_t number_;
    std::chrono::steady_clock::time_point start_;
};

} // namespace quillet::platform
