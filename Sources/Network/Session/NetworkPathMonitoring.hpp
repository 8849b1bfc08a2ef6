#pragma once

#include <string>

namespace quillet {

/// Knows whether there is a network. Called on the threads of sessions, before each call is sent; must answer
/// at once and may be called by several threads at a time.
class NetworkPathMonitoring {
public:
    virtual ~NetworkPathMonitoring() = default;

    /// False if the host cannot be reached because the device has no network at all. `isMapped` says that a
    /// host mapping gives this host another address, which need not be on a network.
    [[nodiscard]] virtual bool isSatisfied(const std::string& host, bool isMapped) const = 0;
};

/// Asks the system: there is a network if an interface other than loopback is up with an address. Mapped
/// hosts are always reachable.
class SystemNetworkPathMonitor final : public NetworkPathMonitoring {
public:
    [[nodiscard]] bool isSatisfied(const std::string& host, bool isMapped) const override;
};

} // namespace quillet
