#pragma once

#include <string>

namespace quillet::platform {

/// Knows whether there is a network. Called on the threads of sessions, when a host's name could not be
/// resolved or no connection came about; must answer at once and may be called by several threads at a time.
class NetworkPathMonitoring {
public:
    virtual ~NetworkPathMonitoring() = default;

    /// False if the host was not reached because the device has no network at all. `isMapped` says that a
    /// host mapping gives this host another address, which need not be on a network.
    [[nodiscard]] virtual bool isSatisfied(const std::string& host, bool isMapped) const = 0;
};

/// Asks the system's routing tables: there is a network if they know a way to an address far away. A system
/// that does not tell is taken for one with a network. The network is never to blame for a mapped host.
class SystemNetworkPathMonitor final : public NetworkPathMonitoring {
public:
    [[nodiscard]] bool isSatisfied(const std::string& host, bool isMapped) const override;
};

} // namespace quillet::platform
