#include "HostWindow.hpp"

#include "KelDS/KelAppearance.hpp"
#include "Play/PlayRunner.hpp"
#include "Sandbox/Platform.hpp"

#include <QGuiApplication>
#include <QJsonArray>
#include <QTemporaryDir>

namespace demo::testing {

namespace {

/// The host, its gateway, and the network between them.
struct Plays : HostWindow {
    Plays() { configurePlatform(network->address(), journal, network); }
    ~Plays() override { quillet::platform::URLSessionConfiguration::setDefaultConfiguration({}); }

    QJsonObject run(const QByteArray& steps) {
        const auto play = parsePlay("p", QString::fromUtf8(steps));
        EXPECT_TRUE(play) << play.error().toStdString();
        return runner.run(*play);
    }

    const QTemporaryDir folder;
    GatewayProcess gateway;
    std::shared_ptr<NetworkSwitch> network = std::make_shared<NetworkSwitch>(
        *gateway.start({.program = QCoreApplication::applicationDirPath() + "/quillet-gateway",
                        .dataFolder = folder.path()}));
    Appearance started{.theme = kel::KelTheme::dark, .textScale = 130, .direction = Qt::LeftToRight};
    PlayRunner runner{*host, *journal, *network, started, folder.path()};
};

} // namespace

TEST_F(Plays, PassAStepOnlyWhereItHolds) {
    const QByteArray open =
        "handmade ERROR_CART_ALREADY_SUBMITTED\nexpect \"¡Ya registraste este pedido!\"\n";
    // Each play's last step is the first that is not met.
    const std::pair<QByteArray, std::string> cases[] = {
        {"expect \"Cerrar\" within=0\n", "not on the screen: \"Cerrar\""},
        {"focused \"Cerrar\" within=0\n", "the focus is on \"\""},
        {open + "close-icon by=key\ntitle \"Pedidos recibidos\"\nlanguage pt\n",
         "the language is chosen before the first screen"},
        {"network off\nopen cart=41067a00-52e1-4d0b-9c77-1f0a6b2e8467 consultant=41067 country=PE\n"
         "expect \"Lo sentimos, tu dispositivo está sin conexión a internet\"\nnetwork on\n"
         "tap \"Actualizar\" by=touch\nexpect \"Ver Pedidos\"\ntitle \"Carrito\" within=0\n",
         "the title is \"Resumen de venta\""},
        {open + "absent \"Cerrar\" within=0\n", "still on the screen: \"Cerrar\""},
        {open + "press Tab\nfocused \"Cerrar\"\npress Backtab\nfocused \"Ir a la pantalla de inicio\"\n"
                "tap \"¡Ya registraste este pedido!\" by=key\n",
         "Tab comes round without reaching \"¡Ya registraste este pedido!\"; it reaches \"Ir a la "
         "pantalla de inicio\", \"Cerrar\""},
    };
    for (const auto& [steps, missing] : cases) {
        SCOPED_TRACE(steps.toStdString());
        const auto report = run(steps + "close\n");
        const QJsonArray told = report["steps"].toArray();
        EXPECT_FALSE(report["ok"].toBool());
        EXPECT_EQ(told.last()["missing"].toString().toStdString(), missing);
        EXPECT_EQ(told.size(), steps.count('\n'));
    }
}

TEST_F(Plays, OpenTheOrderThatAPersonTaps) {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(host->window()));
    network->setOn(false);
    Hands(*host->window()).tap(item("hostOrder").mapToScene({8, 8}), Device::mouse);
    EXPECT_TRUE(QTest::qWaitFor([&] { return status.order() == "Consultant 41053 · Chile · cart 41053a00"; }))
        << status.order().toStdString();
    EXPECT_TRUE(settle());
}

TEST_F(Plays, BeginAsTheProcessBegan) {
    const auto now = [&] {
        const auto& current = kel::KelAppearance::current();
        return std::tuple(current.theme(), current.textScale(), current.hasReducedMotion(),
                          QGuiApplication::layoutDirection(),
                          item("hostOrder").mapToItem(host->phone(), QPointF()).x(), host->phone()->size());
    };
    EXPECT_TRUE(run("theme contrast\ntext-scale 200\nmotion reduced\ndirection rtl\n"
                    "insets 44 10 34 20\nsize 844x390\n")["ok"]
                    .toBool());
    EXPECT_EQ(now(), std::tuple(kel::KelTheme::contrast, 2., true, Qt::RightToLeft, 36., QSizeF(844, 390)));
    EXPECT_TRUE(run("close\n")["ok"].toBool());
    EXPECT_TRUE(settle());
    EXPECT_EQ(now(), std::tuple(kel::KelTheme::dark, 1.3, false, Qt::LeftToRight, 16., QSizeF(320, 568)));
}

} // namespace demo::testing
