#include "KelDS/KelDS.hpp"
#include "Models/Bodies.hpp"
#include "Support/FaultServer.hpp"
#include "Support/Stage.hpp"
#include <Quillet/Quillet.hpp>

#include <QGuiApplication>

#include <gmock/gmock.h>

namespace quillet::testing {

namespace {

struct NoNavigation final : QuilletNavigationDelegate {
    void navigateToCart() override {}
    void navigateToHome() override {}
    void navigateToShareMagazine() override {}
};

/// The colour just inside the left edge of an item.
QColor colorOf(const QQuickItem& item) {
    const QPoint point = item.mapToScene({4, item.height() / 2}).toPoint();
    return item.window()->grabWindow().pixelColor(point);
}

} // namespace

TEST(OtherDesignSystem, SendsAnOrder) {
    const auto navigation = std::make_shared<NoNavigation>();
    const auto starter = Starter::create("token", "idp", {"cart-1", 1, "CL"}, navigation);
    ASSERT_TRUE(starter);
    const TestAuthority authority;
    FaultServer server(authority.serverContext(starter->domainUrl()));
    server.enqueue(Answer::complete(200, tests::orderJson));
    server.enqueue(Answer::complete(200, tests::openOrdersJson));
    server.enqueue(Answer::complete(200, tests::checkoutJson));
    platform::URLSessionConfiguration::setDefaultConfiguration(
        {.caBundleFile = authority.bundleFile(),
         .hostMappings = {{starter->domainUrl(), "127.0.0.1", server.port()}}});

    Stage stage;
    const auto settled = [&] { return !stage.stack().property("busy").toBool(); };
    ASSERT_TRUE(present(starter->createRootViewController(), stage.stack()));
    ASSERT_TRUE(turnUntil([&] { return stage.shows("Ver Pedidos") && settled(); }));
    stage.click("Ver Pedidos");
    ASSERT_TRUE(turnUntil([&] { return !stage.shows("Ver Pedidos"); }));
    EXPECT_TRUE(stage.shows("Puntos en curso: <b>12</b>"));
    EXPECT_EQ(colorOf(*stage.item("Send products to my cart")), kel::KelColors::primary());

    stage.click("Send products to my cart");
    ASSERT_TRUE(turnUntil([&] { return stage.shows("Productos no enviados") && settled(); }));
    for (const char* text : {"Algunos productos no fueron enviados al carrito. ¡Vea!", "Labial", "Crema"}) {
        EXPECT_TRUE(stage.shows(text)) << text;
    }
    EXPECT_THAT(Stage::complaints(), ::testing::IsEmpty());
}

} // namespace quillet::testing

int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
