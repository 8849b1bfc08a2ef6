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

namespace {

HostPage cartPage() {
    return {QStringLiteral("Carrito"),
            QStringLiteral("Aquí la aplicación anfitriona muestra el carrito de la consultora."),
            kel::KelIconNumber::cart};
}

HostPage magazinePage() {
    return {QStringLiteral("Revista digital"),
            QStringLiteral("Aquí la aplicación anfitriona comparte la revista con los clientes."),
            kel::KelIconNumber::share};
}

} // namespace

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
    return embed(order);
}

bool HostApplication::openHandmade(const std::string& refusal) {
    close();
    return quillet::present(refusedOrderScreen(refusal, self_), stack());
}

QQuickItem& HostApplication::stack() const {
    return *window()->property("stack").value<QQuickItem*>();
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

// Live shows what stands between the two marks.
// host code: begin
bool HostApplication::embed(const Order& order) {
    const auto& [cart, token, provider, environment] = order;
    // A starter keeps the environment that is configured when it is created.
    quillet::QuilletConfiguration::shared().configure(environment);
    const auto starter = quillet::Starter::create(token, provider, cart, self_.lock());
    // The module's screens are pages of the host's StackView. Popping them ends the module.
    return starter && quillet::present(starter->createRootViewController(), stack());
}

// The module hands over to its navigation delegate, which is the host.
void HostApplication::navigateToCart() {
    journal_.navigated(QStringLiteral("navigateToCart"), kel::KelIconNumber::cart);
    showHostPage(cartPage());
}

void HostApplication::navigateToHome() {
    journal_.navigated(QStringLiteral("navigateToHome"), kel::KelIconNumber::home);
    close();
}

void HostApplication::navigateToShareMagazine() {
    journal_.navigated(QStringLiteral("navigateToShareMagazine"), kel::KelIconNumber::share);
    showHostPage(magazinePage());
}
// host code: end

void HostApplication::showHostPage(const HostPage& page) {
    QMetaObject::invokeMethod(window(), "showHostPage", Q_ARG(QVariant, page.title),
                              Q_ARG(QVariant, page.message), Q_ARG(QVariant, int(page.icon)));
}

} // namespace demo
