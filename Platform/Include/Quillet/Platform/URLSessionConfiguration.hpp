#pragma once

#include "Quillet/Export.hpp"
#include "Quillet/Platform/URLLoading.hpp"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::platform {

/// Tells whether the device has a network. Called on the sessions' threads, possibly concurrently, after a
/// name could not be resolved or a connection not be made. Must not block.
class NetworkPathMonitoring {
public:
    virtual ~NetworkPathMonitoring() = default;

    /// False if the host was not reached because the device has no network at all. `isMapped` says that a
    /// host mapping gives this host another address, which need not be on a network.
    [[nodiscard]] virtual bool isSatisfied(const std::string& host, bool isMapped) const = 0;
};

/// Is notified when a clock was set. May be called on any thread; returns at once.
class SessionClockListening {
public:
    virtual ~SessionClockListening() = default;

    virtual void clockDidJump() = 0;
};

/// The clock that a session measures its calls' time-outs with. Used on any thread while such a session has
/// calls.
class SessionClock {
public:
    virtual ~SessionClock() = default;

    /// Monotonic, from an arbitrary origin.
    [[nodiscard]] virtual std::chrono::steady_clock::time_point now() const = 0;

    /// A clock that can be set notifies its listeners; a clock that cannot does nothing here. The listener is
    /// not owned.
    virtual void addListener(std::weak_ptr<SessionClockListening> listener) = 0;
};

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

/// One call that has ended, for a log. It holds neither the token nor a body.
struct LoggedCall {
    std::string method;
    /// Path and query as sent. They hold the cart's identifier, the country and the consultant's code.
    std::string path;
    /// Of a complete answer; 0 where there is none.
    std::int64_t statusCode = 0;
    /// From the start of the call, by the session's clock.
    std::chrono::milliseconds duration{0};
    /// After unpacking.
    std::size_t bodyBytes = 0;
    /// Absent for a complete answer, whatever its status.
    std::optional<URLError> error;
};

/// One line: "GET /path 200, 1234 bytes, 56 ms" or "GET /path failed: why, 56 ms".
[[nodiscard]] QUILLET_BACKEND_API std::string description(const LoggedCall& call);

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
    /// Called when a call has ended, just before its completion; no function for no log. On the sessions'
    /// threads, possibly concurrently; must return quickly. Exceptions that it throws are dropped.
    std::function<void(const LoggedCall&)> log = nullptr;
    /// Answers all calls in place of the network. Null for the network, by HTTPS.
    std::shared_ptr<URLLoading> loader = nullptr;
    /// The largest body that is taken, in bytes after unpacking; a larger one ends the call with an error. 16
    /// MiB is nearly twice a list of two thousand orders of twelve lines each. Decoding may take several
    /// times as much memory, which a phone must have.
    std::size_t maximumBodyBytes = std::size_t{16} << 20;
    /// How long one attempt to connect may take, from resolving the name until TLS begins, by the system's
    /// clock. Of several addresses the first one gets half of it. A call of which nothing was sent yet begins
    /// again after it, with the name resolved anew, for as long as the request's time-out lets it.
    std::chrono::milliseconds connectTimeout = std::chrono::seconds(15);

    /// The mapping for a host; null if there is none.
    [[nodiscard]] QUILLET_BACKEND_API const HostMapping* mapping(std::string_view host) const;

    /// The configuration of every session that is not given one of its own. May be called on any thread.
    [[nodiscard]] QUILLET_BACKEND_API static URLSessionConfiguration defaultConfiguration();
    /// Meant for the host, once, before the module runs; sessions that exist keep theirs. May be called on
    /// any thread.
    QUILLET_BACKEND_API static void setDefaultConfiguration(URLSessionConfiguration configuration);
};

} // namespace quillet::platform
