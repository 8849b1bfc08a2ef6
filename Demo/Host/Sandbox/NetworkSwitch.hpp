#pragma once

#include "Quillet/Platform/URLSessionConfiguration.hpp"
#include "Sandbox/GatewayProcess.hpp"

#include <QThread>

#include <atomic>
#include <memory>

class QTcpServer;

namespace demo {

/// The network between the module and a gateway, which can be switched off. While it is on, connections are
/// forwarded to the gateway.
class NetworkSwitch final : public quillet::platform::NetworkPathMonitoring {
public:
    /// On at first.
    explicit NetworkSwitch(const GatewayAddress& gateway);
    ~NetworkSwitch() override;

    /// The address at which clients reach the gateway through the switch.
    [[nodiscard]] const GatewayAddress& address() const { return address_; }

    /// Switching off ends all connections before it returns.
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
