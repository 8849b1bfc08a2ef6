#pragma once

#include "Platform/Http/URLSession.hpp"
#include "Support/SandboxedSession.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

namespace quillet::testing {

using Code = platform::URLError::Code;

inline const platform::Url toGateway{gatewayHost, "/"};

/// Calls to a fault server. The proxy settings of the machine do not count.
struct SessionTest : ::testing::Test, SandboxedSession {
    SessionTest() {
        for (const char* const name :
             {"https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY", "no_proxy", "NO_PROXY"}) {
            unsetenv(name);
        }
    }

    void start(const platform::URLSession& session,
               const platform::URLRequest& request = {.url = toGateway}) {
        session.dataTask(request, calls.completion()).resume();
    }
    /// Makes a call, and waits for its outcome.
    const platform::URLSessionOutcome& exchange(const platform::URLSession& session,
                                                const platform::URLRequest& request = {.url = toGateway}) {
        const auto call = calls.count();
        start(session, request);
        return calls.wait(call);
    }
    /// The code of a POST's error; none has the value 0.
    Code errorOf(const platform::URLSession& session, const std::string& host = gatewayHost) {
        const auto& error = exchange(session, {.url = {host, "/"}, .httpMethod = "POST"}).error;
        return error ? error->code : Code();
    }

    CallRecorder calls;
};

} // namespace quillet::testing
