#pragma once

#include "Quillet/Platform/URLSessionConfiguration.hpp"
#include "Quillet/Testing/ManualClock.hpp"
#include "Support/FaultServer.hpp"
#include "Support/Recorder.hpp"

namespace quillet::testing {

inline constexpr auto gatewayHost = "gateway.test";

/// A fault server in the place of `gatewayHost`, and the configuration that leads a session to it.
struct SandboxedSession {
    TestAuthority authority;
    FaultServer server{authority.serverContext(gatewayHost)};
    std::shared_ptr<ManualClock> clock = std::make_shared<ManualClock>();
    platform::URLSessionConfiguration configuration{
        .caBundleFile = authority.bundleFile(),
        .hostMappings = {{.host = gatewayHost, .address = "127.0.0.1", .port = server.port()}},
        .clock = clock,
    };
};

} // namespace quillet::testing
