#include "HostApplication.hpp"

#include "KelDS/KelDS.hpp"
#include "KelDSIcons/KelDSIcons.hpp"
#include "Sandbox/RefusedOrder.hpp"

#include <QJsonArray>
#include <QJsonDocument>
#include <QQmlContext>
#include <QQuickItem>

extern void qml_register_types_Demo();

namespace demo {

HostApplication::HostApplication(Journal& journal, LiveStatus& status, PhoneArea& area,
                                 const QByteArray& orders)
    : journal_(journal),
      status_(status),
      area_(area),
      orders_(QJsonDocument::fromJson(orders).array().toVariantList()) {}

HostApplication::~HostApplication() = default;

bool HostApplication::load(const std::shared_ptr<HostApplication>& self) {
    self_ = self;
    // Naming the function keeps the linker from dropping the registration out of the static library.
    qml_register_types_Demo();
    kel::useDesignSystem(engine_);
    engine_.setInitialProperties({{QStringLiteral("host"), QVariant::fromValue<QObject*>(this)},
                                  {QStringLiteral("area"), QVariant::fromValue(&area_)}});
    engine_.load(QUrl(QStringLiteral("qrc:/qt/qml/Demo/Main.qml")));
    if (!window()) {
        return false;
    }
    area_.arrange(*window());
    window()->show();
    return true;
}

QQuickWindow* HostApplication::window() const {
    return engine_.rootObjects().isEmpty() ? nullptr
                                           : qobject_cast<QQuickWindow*>(engine_.rootObjects().first());
}

QQuickItem* HostApplication::phone() const {
    return window()->property("phone").value<QQuickItem*>();
}

bool HostApplication::open(const Order& order) {
    close();
    status_.opened(order.cart, order.environment);
    quillet::QuilletConfiguration::shared().configure(order.environment);
    const auto starter =
        quillet::Starter::create(order.accessToken, order.authorizationProvider, order.cart, self_.lock());
    return starter && show(starter->createRootViewController());
}

bool HostApplication::openHandmade(const std::string& refusal) {
    close();
    return show(refusedOrderScreen(refusal, self_));
}

bool HostApplication::show(const std::shared_ptr<quillet::platform::QuickViewController>& screen) {
    return quillet::present(screen, *window()->property("stack").value<QQuickItem*>());
}

void HostApplication::close() {
    QMetaObject::invokeMethod(window(), "showHome");
}

void HostApplication::openOrder(int index) {
    const QVariantMap row = orders_.value(index).toMap();
    journal_.beginOrder();
    open({.cart = {row[QStringLiteral("cart")].toString().toStdString(),
                   row[QStringLiteral("consultant")].toULongLong(),
                   row[QStringLiteral("country")].toString().toStdString()},
          .accessToken = "sample-access-token",
          .authorizationProvider = "sample-idp"});
}

void HostApplication::navigateToCart() {
    journal_.navigated(QStringLiteral("navigateToCart"), kel::KelIconNumber::cart);
    showHostPage(QStringLiteral("Carrito"),
                 QStringLiteral("Aquí la aplicación anfitriona muestra el carrito de la consultora."),
                 int(kel::KelIconNumber::cart));
}

void HostApplication::navigateToHome() {
    journal_.navigated(QStringLiteral("navigateToHome"), kel::KelIconNumber::home);
    close();
}

void HostApplication::navigateToShareMagazine() {
    journal_.navigated(QStringLiteral("navigateToShareMagazine"), kel::KelIconNumber::share);
    showHostPage(QStringLiteral("Revista digital"),
                 QStringLiteral("Aquí la aplicación anfitriona comparte la revista con los clientes."),
                 int(kel::KelIconNumber::share));
}

void HostApplication::showHostPage(const QString& title, const QString& message, int icon) {
    QMetaObject::invokeMethod(window(), "showHostPage", Q_ARG(QVariant, title), Q_ARG(QVariant, message),
                              Q_ARG(QVariant, icon));
}

} // namespace demo
