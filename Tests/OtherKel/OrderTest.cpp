#include "KelDS/KelDS.hpp"
#include "Support/Stage.hpp"
#include <Quillet/Quillet.hpp>
#include <Quillet/Testing.hpp>

#include <QGuiApplication>

#include <gmock/gmock.h>

namespace quillet::testing {

TEST(OtherDesignSystem, SendsAnOrder) {
    int count = 0;
    const QGuiApplication application(count, nullptr);
    const auto backend = ScriptedBackend::install();
    const auto starter = Starter::create("token", "idp", {"cart-1", 1, "CL"}, nullptr);
    Stage stage;
    const auto settled = [&] { return !stage.stack().property("busy").toBool(); };
    ASSERT_TRUE(starter && present(starter->createRootViewController(), stage.stack()));
    ASSERT_TRUE(turnUntil([&] { return stage.shows("Ver Pedidos") && settled(); }));
    stage.click("Ver Pedidos");
    ASSERT_TRUE(turnUntil([&] { return !stage.shows("Ver Pedidos"); }));
    EXPECT_TRUE(stage.shows("Puntos en curso: <b>60</b>"));
    const QQuickItem& button = *stage.item("Send products to my cart");
    const QPoint insideItsEdge = button.mapToScene({4, button.height() / 2}).toPoint();
    EXPECT_EQ(stage.window().grabWindow().pixelColor(insideItsEdge), kel::KelColors::primary());

    stage.click("Send products to my cart");
    ASSERT_TRUE(turnUntil([&] { return stage.shows("Productos no enviados") && settled(); }));
    for (const char* text : {"Algunos productos no fueron enviados al carrito. ¡Vea!",
                             "Champú sólido Romero y limón", "Labial mate Arcilla rosada"}) {
        EXPECT_TRUE(stage.shows(text)) << text;
    }
    EXPECT_THAT(Stage::complaints(), ::testing::IsEmpty());
}

} // namespace quillet::testing
