#include "HostWindow.hpp"

#include "KelDS/KelMeasures.hpp"
#include "Play/Items.hpp"

namespace demo::testing {

namespace {

struct Chrome : HostWindow {
    [[nodiscard]] QRectF place(const char* name) const { return sceneRect(item(name)); }
    [[nodiscard]] QQuickItem& page() const { return *stack().property("currentItem").value<QQuickItem*>(); }
    [[nodiscard]] bool rests() const { return settle() && page().x() == 0 && page().opacity() == 1; }
};

} // namespace

TEST_F(Chrome, MovesItsPagesByDirectionOrFadesThemAndKeepsOffTheEdges) {
    // The side from which a page comes, and where the bar's arrow, and its title from left to right, then
    // are.
    const std::tuple<Appearance, QMarginsF, double, QPointF, QPointF> cases[] = {
        {{.direction = Qt::LeftToRight}, {}, 1, {0, 0}, {56, 304}},
        {{.reducedMotion = true, .direction = Qt::RightToLeft}, {}, 0, {264, 0}, {16, 264}},
        {{.direction = Qt::LeftToRight}, {20, 44, 30, 34}, 1, {20, 44}, {76, 274}},
        {{.direction = Qt::RightToLeft}, {20, 44, 30, 34}, -1, {234, 44}, {36, 234}},
    };
    for (const auto& [appearance, insets, side, back, title] : cases) {
        SCOPED_TRACE(::testing::Message() << "side " << side << ", top inset " << insets.top());
        apply(appearance);
        quillet::setSafeAreaInsets(*host->phone(), insets);
        host->navigateToCart();
        EXPECT_EQ(page().x(), side * stack().width());
        EXPECT_EQ(page().opacity(), side == 0 ? 0 : 1);
        EXPECT_TRUE(rests());
        EXPECT_EQ(place("hostBack").topLeft(), back);
        EXPECT_EQ(item("hostBack").rotation(), appearance.direction == Qt::RightToLeft ? 180 : 0);
        EXPECT_EQ(QPointF(place("hostTitle").left(), place("hostTitle").right()), title);
        EXPECT_EQ(place("hostBar").bottom(), insets.top() + 56);
        EXPECT_EQ(place("hostMessage").left(), insets.left() + 32);
        EXPECT_EQ(place("hostMessage").right(), 320 - insets.right() - 32);
        host->close();
        EXPECT_EQ(page().x(), -side * kel::KelSizes::large);
        EXPECT_TRUE(rests());
        EXPECT_EQ(place("hostOrder"),
                  QRectF(QPointF(insets.left() + 16, insets.top() + 72),
                         QSizeF(288 - insets.left() - insets.right(), place("hostOrder").height())));
    }
}

TEST_F(Chrome, ShowsItsPagesWithoutCuttingTheirTextsAndTellsTheJournal) {
    constexpr auto home = "Pedidos recibidos | Florencia Vergara Contreras | "
                          "¡Hola! Te mando mi pedido de la revista. | 41053 · No product is added";
    const std::pair<void (HostApplication::*)(), std::string> cases[] = {
        {&HostApplication::navigateToCart,
         "Carrito | Aquí la aplicación anfitriona muestra el carrito de la consultora."},
        {&HostApplication::navigateToShareMagazine,
         "Revista digital | Aquí la aplicación anfitriona comparte la revista con los clientes."},
        {&HostApplication::navigateToHome, home},
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return wordsIn(*host->phone()) == home; }));
    for (const auto& [navigate, words] : cases) {
        (*host.*navigate)();
        ASSERT_TRUE(settle());
        for (const QSize size : {QSize(320, 568), QSize(844, 390)}) {
            area.resize(size);
            apply({.textScale = 200, .direction = Qt::LeftToRight});
            ASSERT_TRUE(settle());
            EXPECT_EQ(wordsIn(*host->phone()), words) << size.width();
            EXPECT_GE(place("hostBar").height(), item("hostTitle").implicitHeight());
            // The page need not scroll any more, and Qt warns where it then gives up the keys.
            page().forceActiveFocus(Qt::TabFocusReason);
            apply({.direction = Qt::LeftToRight});
        }
    }
    EXPECT_EQ(journal->navigationJson(),
              (QJsonArray{"navigateToCart", "navigateToShareMagazine", "navigateToHome"}));
}

} // namespace demo::testing
