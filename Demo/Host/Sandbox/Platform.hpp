#pragma once

#include "Sandbox/GatewayProcess.hpp"
#include "Sandbox/Recorders.hpp"

#include <memory>

namespace demo {

/// Sets the platform's process-wide defaults, as a host does once before it uses the module: whom to trust,
/// where the gateways of all three environments are, who watches, and whether there is a network. The module
/// itself is the same here as in production. Returns the switch of the network.
[[nodiscard]] std::shared_ptr<SwitchableNetworkPath>
configurePlatform(const GatewayAddress& gateway, const std::shared_ptr<Journal>& journal);

} // namespace demo
