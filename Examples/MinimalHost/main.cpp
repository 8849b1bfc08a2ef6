#include <KelCommon/KelCommon.hpp>
#include <Quillet/Quillet.hpp>

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>

struct Navigation : quillet::QuilletNavigationDelegate {
    void navigateToCart() override { qInfo("the host opens the consultant's cart"); }
    void navigateToHome() override { QGuiApplication::quit(); }
    void navigateToShareMagazine() override { qInfo("the host shares the magazine"); }
};

struct Analytics : kel::KelAnalyticsManagerType {
    void trackScreen(const kel::KelAnalyticsScreenType& screen) override {
        qInfo("screen: %s", screen.name().c_str());
    }
    void trackEvent(const kel::KelAnalyticsEventType& event) override {
        qInfo("event: %s", event.action().c_str());
    }
};

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.loadData(R"(import QtQuick.Controls.Basic
        ApplicationWindow { visible: true; width: 390; height: 844
                            StackView { objectName: "stack"; anchors.fill: parent } })");
    auto* stack = engine.rootObjects().constFirst()->findChild<QQuickItem*>("stack");

    if (argc == 3) { // PORT CA.PEM: the project's own gateway, on this machine
        quillet::platform::URLSessionConfiguration configuration;
        configuration.caBundleFile = argv[2];
        configuration.hostMappings = {
            {"gateway-dev.quillet.example", "127.0.0.1", QString(argv[1]).toUShort()}};
        quillet::platform::URLSessionConfiguration::setDefaultConfiguration(configuration);
    }
    kel::KelAnalyticsManager::shared()->setSink(std::make_shared<Analytics>());
    quillet::QuilletConfiguration::shared().configure(quillet::Environment::dev);
    const auto navigation = std::make_shared<Navigation>();
    const auto starter = quillet::Starter::create(
        "access token of the host's login", "identity-provider",
        {.uuid = "7f3c9a10-52e1-4d0b-9c77-1f0a6b2e84d3", .consultantId = 41052, .country = "CL"}, navigation);
    return starter && quillet::present(starter->createRootViewController(), *stack) ? application.exec() : 1;
}
