#pragma once

#include "KelDS/KelTagColor.hpp"
#include "Quillet/CartForConsultant.hpp"
#include "Quillet/Starter.hpp"
#include "Sandbox/GatewayProcess.hpp"

#include <QObject>
#include <QString>

namespace demo {

/// The journal's header: whose order is open, in which environment, and the state of its gateway. Main thread
/// only.
class LiveStatus final : public QObject {
    Q_OBJECT
    /// Empty before the first order.
    Q_PROPERTY(QString order READ order NOTIFY changed FINAL)
    Q_PROPERTY(QString environment READ environment NOTIFY changed FINAL)
    Q_PROPERTY(QString gateway READ gateway NOTIFY changed FINAL)
    Q_PROPERTY(kel::KelTagColor::Color gatewayColor READ gatewayColor NOTIFY changed FINAL)

public:
    /// The gateway is the host's own and running, until it is reported to have ended.
    void gatewayStarted();
    void gatewayEnded();
    /// The gateway is external: only its address is known.
    void gatewayElsewhere(const GatewayAddress& address);
    void opened(const quillet::CartForConsultant& cart, quillet::Environment environment);

    [[nodiscard]] QString order() const { return order_; }
    [[nodiscard]] QString environment() const { return environment_; }
    [[nodiscard]] QString gateway() const { return gateway_; }
    [[nodiscard]] kel::KelTagColor::Color gatewayColor() const { return gatewayColor_; }

Q_SIGNALS:
    void changed();

private:
    void setGateway(const QString& text, kel::KelTagColor::Color color);

    QString order_;
    QString environment_ = QStringLiteral("dev");
    QString gateway_;
    kel::KelTagColor::Color gatewayColor_ = kel::KelTagColor::Primary;
};

} // namespace demo
