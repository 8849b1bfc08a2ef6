#pragma once

#include "Quillet/Platform/URLSessionConfiguration.hpp"

namespace quillet::platform {

/// Asks the system's routing tables: there is a network if they have a route to a remote address. If the
/// system does not tell, a network is assumed. A mapped host never counts as being without a network.
class SystemNetworkPathMonitor final : public NetworkPathMonitoring {
public:
    [[nodiscard]] bool isSatisfied(const std::string& host, bool isMapped) const override;
};

} // namespace quillet::platform
