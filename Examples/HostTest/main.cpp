// Tests that a host embeds the module well, without network: run it with QT_QPA_PLATFORM=offscreen.
#include <KelCommon/KelCommon.hpp>
#include <Quillet/Quillet.hpp>
#include <Quillet/Testing.hpp>

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>

#include <algorithm>

using namespace quillet::testing;

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    const auto backend = ScriptedBackend::install();
    const Log log = makeLog();
    kel::KelAnalyticsManager::shared()->setSink(std::make_shared<RecordingAnalytics>(log));
    const auto host = std::make_shared<RecordingNavigation>(log);

    // Here stands what the host does to open the module.
    QQmlApplicationEngine engine;
    engine.loadData(R"(import QtQuick.Controls.Basic
        ApplicationWindow { visible: true; width: 390; height: 844
                            StackView { objectName: "stack"; anchors.fill: parent } })");
    auto* stack = engine.rootObjects().constFirst()->findChild<QQuickItem*>("stack");
    const auto open = [&] {
        const auto starter = quillet::Starter::create("access token", "idp", {"cart", 41052, "CL"}, host);
        return starter && quillet::present(starter->createRootViewController(), *stack);
    };
    const auto waitFor = [&](const std::string& line) {
        for (int round = 0; round < 1000 && !std::ranges::count(*log, line); ++round) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        }
        return std::ranges::count(*log, line) > 0;
    };

    // The back end answers after ten seconds of its own clock: the test waits for none of them.
    backend->script(Call::associate,
                    {{.body = sampleBody(Call::associate), .after = std::chrono::seconds(10)}});
    if (!open() || !waitFor("screen Pedidos de mis clientes") || backend->requests().size() != 1) {
        return 1;
    }
    backend->clock()->advance(std::chrono::seconds(10));
    if (!waitFor(event("Register Order", "Deep Linking"))) {
        return 2;
    }
    // A call that is never answered ends after its minute.
    backend->script(Call::associate, {Reply::never()});
    if (!open()) {
        return 3;
    }
    backend->clock()->advance(std::chrono::seconds(60));
    return waitFor("screen Error") ? 0 : 4;
}
