#pragma once

#include "Network/Session/NetworkPathMonitoring.hpp"
#include "Network/Session/SessionClock.hpp"
#include "Network/Session/URLSessionObserving.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillet {

/// Sends the calls for a host to another address. Names and certificates are still those of the host. Proxies
/// of the environment do not apply to a mapped host.
struct HostMapping {
    /// Compared without regard to letter case.
    std::string host;
    /// A name, or an address: "127.0.0.1", "::1".
    std::string address;
    std::uint16_t port = 443;

    bool operator==(const HostMapping&) const = default;
};

/// How sessions reach the network. A value: a session keeps the one it was made with.
struct URLSessionConfiguration {
    /// File of the trusted certificate authorities, PEM; empty for the system's. There is no way not to
    /// verify.
    std::string caBundleFile = {};
    std::vector<HostMapping> hostMappings = {};
    /// Null for the system's.
    std::shared_ptr<const NetworkPathMonitoring> networkPath = nullptr;
    /// Null for the system's.
    std::shared_ptr<SessionClock> clock = nullptr;
    /// Null for nobody.
    std::shared_ptr<URLSessionObserving> observer = nullptr;
    /// The largest body that is taken, in bytes after unpacking; a larger one ends the call with an error. 64
    /// MiB is seven times a list of two thousand orders.
    std::size_t maximumBodyBytes = std::size_t{64} << 20;

    /// The mapping for a host; null if there is none.
    [[nodiscard]] const HostMapping* mapping(std::string_view host) const;

    /// The configuration of every session that is not given one of its own. May be called on any thread.
    [[nodiscard]] static URLSessionConfiguration defaultConfiguration();
    /// Meant for the host, once, before the module runs; sessions that exist keep theirs. May be called on
    /// any thread.
    static void setDefaultConfiguration(URLSessionConfiguration configuration);
};

} // namespace quillet
