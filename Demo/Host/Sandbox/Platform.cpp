#include "Sandbox/Platform.hpp"

#include "KelCommon/KelAnalyticsManager.hpp"
#include "Network/Session/URLSessionConfiguration.hpp"

namespace demo {

std::shared_ptr<SwitchableNetworkPath> configurePlatform(const GatewayAddress& gateway,
                                                         const std::shared_ptr<Journal>& journal) {
    auto network = std::make_shared<SwitchableNetworkPath>();
    quillet::URLSessionConfiguration configuration;
    configuration.caBundleFile = gateway.caFile.toStdString();
    for (const char* host : {QUILLET_GATEWAY_HOST_DEV, QUILLET_GATEWAY_HOST_HML, QUILLET_GATEWAY_HOST_PRD}) {
        configuration.hostMappings.push_back({host, gateway.host.toStdString(), gateway.port});
    }
    configuration.networkPath = network;
    configuration.observer = std::make_shared<TrafficRecorder>(journal);
    quillet::URLSessionConfiguration::setDefaultConfiguration(std::move(configuration));
    kel::KelAnalyticsManager::shared()->setSink(std::make_shared<AnalyticsRecorder>(journal));
    return network;
}

} // namespace demo
