#pragma once

#include <string>

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

/// Asks the system's routing tables: there is a network if they have a route to a remote address. If the
/// system does not tell, a network is assumed. A mapped host never counts as being without a network.
class SystemNetworkPathMonitor final : public NetworkPathMonitoring {
public:
    [[nodiscard]] bool isSatisfied(const std::string& host, bool isMapped) const override;
};

} // namespace quillet::platform
