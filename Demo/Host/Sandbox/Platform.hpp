#pragma once

#include "Quillet/Platform/URLSessionConfiguration.hpp"
#include "Sandbox/GatewayProcess.hpp"
#include "Sandbox/Recorders.hpp"

#include <memory>

namespace demo {

/// Sets the platform's process-wide defaults, as a host does once before it uses the module: the trusted
/// authorities, the address for all three environments, the observer, and the network path (null for the
/// system's). The module itself is the same as in production.
void configurePlatform(const GatewayAddress& gateway, const std::shared_ptr<Journal>& journal,
                       const std::shared_ptr<const quillet::platform::NetworkPathMonitoring>& networkPath);

} // namespace demo
