#pragma once

#include "Quillet/Platform/URLSessionConfiguration.hpp"
#include "Support/FaultServer.hpp"

#include <string>

namespace quillet::benchmarks {

/// The tests' HTTPS server in the place of the gateway, and the configuration that leads a session to it.
struct Loopback {
    explicit Loopback(std::string name) : host(std::move(name)) {}

    std::string host;
    testing::TestAuthority authority;
    testing::FaultServer server{authority.serverContext(host)};
    platform::URLSessionConfiguration configuration{
        .caBundleFile = authority.bundleFile(),
        .hostMappings = {{.host = host, .address = "127.0.0.1", .port = server.port()}}};
};

} // namespace quillet::benchmarks
