#pragma once

#include "Platform/Http/NetworkPathMonitoring.hpp"
#include "Platform/Http/SessionClock.hpp"
#include "Platform/Http/URLSessionObserving.hpp"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::platform {

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
    /// The largest body that is taken, in bytes after unpacking; a larger one ends the call with an error. 16
    /// MiB is nearly twice a list of two thousand orders of twelve lines each. Decoding may take several
    /// times as much memory, which a phone must have.
    std::size_t maximumBodyBytes = std::size_t{16} << 20;
    /// How long one attempt to connect may take, from resolving the name until TLS begins, by the system's
    /// clock. Of several addresses the first one gets half of it. A call of which nothing was sent yet begins
    /// again after it, with the name resolved anew, for as long as the request's time-out lets it.
    std::chrono::milliseconds connectTimeout = std::chrono::seconds(15);

    /// The mapping for a host; null if there is none.
    [[nodiscard]] const HostMapping* mapping(std::string_view host) const;

    /// The configuration of every session that is not given one of its own. May be called on any thread.
    [[nodiscard]] static URLSessionConfiguration defaultConfiguration();
    /// Meant for the host, once, before the module runs; sessions that exist keep theirs. May be called on
    /// any thread.
    static void setDefaultConfiguration(URLSessionConfiguration configuration);
};

} // namespace quillet::platform
