// quillet-screen-reader-host NAME loading|order: a window with the module in it, for an assistive program to
// find by that name. The back end never answers, or answers at once and well.
#include <KelCommon/KelCommon.hpp>
#include <KelDS/KelAppearance.hpp>
#include <Quillet/Quillet.hpp>
#include <Quillet/Testing.hpp>

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>

using namespace quillet::testing;

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QString::fromLocal8Bit(argc == 3 ? argv[1] : ""));
    kel::setLanguage(QStringLiteral("es"));
    kel::KelAppearance::current().setReducedMotion(true);
    const auto backend = ScriptedBackend::install();
    if (argc == 3 && std::string(argv[2]) == "loading") {
        backend->script(Call::associate, {Reply::never()});
    }

    QQmlApplicationEngine engine;
    engine.loadData(R"(import QtQuick.Controls.Basic
        ApplicationWindow { visible: true; width: 390; height: 844; title: "Host"
                            StackView { objectName: "stack"; anchors.fill: parent } })");
    auto* stack = engine.rootObjects().constFirst()->findChild<QQuickItem*>("stack");
    const auto host = std::make_shared<RecordingNavigation>(makeLog());
    const auto starter = quillet::Starter::create("access token", "idp", {"cart", 41052, "CL"}, host);
    if (!starter || !quillet::present(starter->createRootViewController(), *stack)) {
        return 1;
    }
    return QGuiApplication::exec();
}
