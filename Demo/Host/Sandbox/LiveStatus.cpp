#include "Sandbox/LiveStatus.hpp"

#include <QLocale>

namespace demo {

namespace {

constexpr qsizetype cartStart = 8;

QString countryName(const QString& code) {
    const QLocale::Territory territory = QLocale::codeToTerritory(code);
    return territory == QLocale::AnyTerritory ? code : QLocale::territoryToString(territory);
}

QString environmentName(quillet::Environment environment) {
    switch (environment) {
    case quillet::Environment::dev:
        return QStringLiteral("dev");
    case quillet::Environment::hml:
        return QStringLiteral("hml");
    case quillet::Environment::prd:
        return QStringLiteral("prd");
    }
    return {};
}

} // namespace

void LiveStatus::gatewayStarted() {
    setGateway(QStringLiteral("gateway up"), kel::KelTagColor::Success);
}

void LiveStatus::gatewayEnded() {
    setGateway(QStringLiteral("gateway down"), kel::KelTagColor::Alert);
}

void LiveStatus::gatewayElsewhere(const GatewayAddress& address) {
    setGateway(QStringLiteral("%1:%2").arg(address.host).arg(address.port), kel::KelTagColor::Link);
}

void LiveStatus::opened(const quillet::CartForConsultant& cart, quillet::Environment environment) {
    order_ = QStringLiteral("Consultant %1 · %2 · cart %3")
                 .arg(QString::number(cart.consultantId), countryName(QString::fromStdString(cart.country)),
                      QString::fromStdString(cart.uuid).left(cartStart));
    environment_ = environmentName(environment);
    Q_EMIT changed();
}

void LiveStatus::setGateway(const QString& text, kel::KelTagColor::Color color) {
    gateway_ = text;
    gatewayColor_ = color;
    Q_EMIT changed();
}

} // namespace demo
