#include "Sandbox/Platform.hpp"

#include "KelCommon/KelAnalyticsManager.hpp"
#include "Quillet/Platform/URLSessionConfiguration.hpp"

namespace demo {

void configurePlatform(const GatewayAddress& gateway, const std::shared_ptr<Journal>& journal,
                       const std::shared_ptr<const quillet::platform::NetworkPathMonitoring>& networkPath) {
    quillet::platform::URLSessionConfiguration configuration;
    configuration.caBundleFile = gateway.caFile.toStdString();
    for (const char* host : {QUILLET_GATEWAY_HOST_DEV, QUILLET_GATEWAY_HOST_HML, QUILLET_GATEWAY_HOST_PRD}) {
        configuration.hostMappings.push_back({host, gateway.host.toStdString(), gateway.port});
    }
    configuration.networkPath = networkPath;
    configuration.observer = std::make_shared<TrafficRecorder>(journal);
    quillet::platform::URLSessionConfiguration::setDefaultConfiguration(std::move(configuration));
    kel::KelAnalyticsManager::shared()->setSink(std::make_shared<AnalyticsRecorder>(journal));
}

} // namespace demo
