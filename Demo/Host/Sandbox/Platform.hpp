#pragma once

#include "Platform/Http/NetworkPathMonitoring.hpp"
#include "Sandbox/GatewayProcess.hpp"
#include "Sandbox/Recorders.hpp"

#include <memory>

namespace demo {

/// Sets the platform's process-wide defaults, as a host does once before it uses the module: whom to trust,
/// where the gateways of all three environments are, who watches, and who knows whether there is a network
/// (null for the system). The module itself is the same here as in production.
void configurePlatform(const GatewayAddress& gateway, const std::shared_ptr<Journal>& journal,
                       const std::shared_ptr<const quillet::platform::NetworkPathMonitoring>& networkPath);

} // namespace demo
