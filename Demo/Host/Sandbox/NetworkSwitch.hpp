#pragma once

#include "Platform/Http/NetworkPathMonitoring.hpp"
#include "Sandbox/GatewayProcess.hpp"

#include <QThread>

#include <atomic>
#include <memory>

class QTcpServer;

namespace demo {

/// The network between the module and a gateway, which can be switched off, as for a consultant on the
/// underground: connections are passed on to the gateway, or there are none.
class NetworkSwitch final : public quillet::platform::NetworkPathMonitoring {
public:
    /// On at first.
    explicit NetworkSwitch(const GatewayAddress& gateway);
    ~NetworkSwitch() override;

    /// Where the gateway is to be found behind the switch.
    [[nodiscard]] const GatewayAddress& address() const { return address_; }

    /// Ends all connections when it switches off. It is done when it returns.
    void setOn(bool on);

    [[nodiscard]] bool isSatisfied(const std::string& host, bool isMapped) const override;

private:
    const GatewayAddress gateway_;
    GatewayAddress address_;
    std::atomic<bool> isOn_ = true;
    // The connections are served on a thread of their own, so that a busy screen does not slow the network.
    QThread thread_;
    std::unique_ptr<QTcpServer> server_;
};

} // namespace demo
