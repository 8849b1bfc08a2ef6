#include "Quillet/Quillet.hpp"
#include "Quillet/Testing.hpp"
#include "Support/Stage.hpp"

#include <gmock/gmock.h>

#include <ostream>

namespace quillet::testing {

namespace {

/// A text as it is drawn, in the window.
struct DrawnText {
    QString text;
    QRectF place;

    friend void PrintTo(const DrawnText& drawn, std::ostream* stream) {
        const QRectF& at = drawn.place;
        *stream << '"' << drawn.text.toStdString() << "\" at " << at.x() << ", " << at.y() << ", "
                << at.width() << " x " << at.height();
    }
};

// Icons are characters of a font.
bool isIcon(const DrawnText& drawn) {
    return drawn.text.front().category() == QChar::Other_PrivateUse;
}

void collectTexts(const QQuickItem& item, std::vector<DrawnText>& texts) {
    if (!item.isVisible() || item.opacity() == 0) {
        return;
    }
    const QVariant width = item.property("contentWidth");
    const QString text = item.property("text").toString();
    if (width.isValid() && !text.isEmpty() && item.property("lineCount").isValid()) {
        // The number is that of Qt::AlignRight and Qt::AlignHCenter.
        const double drawn = width.toDouble();
        const int alignment = item.property("effectiveHorizontalAlignment").toInt();
        const double room = item.width() - drawn;
        const double x = alignment == Qt::AlignRight ? room : alignment == Qt::AlignHCenter ? room / 2 : 0;
        const double height = std::min(item.height(), item.property("contentHeight").toDouble());
        texts.push_back({text, item.mapRectToScene({x, (item.height() - height) / 2, drawn, height})});
    }
    for (const QQuickItem* child : item.childItems()) {
        collectTexts(*child, texts);
    }
}

} // namespace

TEST(Layout, KeepsTextsApartAndInsideTheWindowAtAnyWidth) {
    const auto backend = ScriptedBackend::install();
    const auto host = std::make_shared<RecordingNavigation>(makeLog());
    for (const int width : {320, 360, 390, 768, 1280}) {
        SCOPED_TRACE(width);
        Stage stage;
        stage.window().setWidth(width);
        const auto starter = Starter::create("token", "idp", {"cart-1", 41052, "CL"}, host);
        ASSERT_TRUE(turnUntil([&] { return stage.stack().width() == width; }));
        ASSERT_TRUE(present(starter->createRootViewController(), stage.stack()));
        ASSERT_TRUE(turnUntil([&] { return stage.shows("Ver Pedidos"); }));
        stage.click("Ver Pedidos");
        const char* const screens[][2] = {
            {"Enviar productos a mi carrito", "14/03/2026"},
            {"Ir al carrito", "Algunos productos no fueron enviados al carrito. ¡Vea!"}};
        for (const auto& [button, shown] : screens) {
            ASSERT_TRUE(turnUntil([&] {
                return stage.shows(shown) && !stage.shows("Ver Pedidos") &&
                       !stage.stack().property("busy").toBool();
            })) << shown;
            std::vector<DrawnText> texts;
            collectTexts(*stage.window().contentItem(), texts);
            EXPECT_GT(texts.size(), 8u);
            for (auto one = texts.begin(); one != texts.end(); ++one) {
                EXPECT_GE(one->place.left(), 0) << ::testing::PrintToString(*one);
                EXPECT_LE(one->place.right(), width) << ::testing::PrintToString(*one);
                for (auto other = one + 1; other != texts.end(); ++other) {
                    // An icon's mark lies over the icon on purpose.
                    EXPECT_FALSE(one->place.intersects(other->place) && !(isIcon(*one) && isIcon(*other)))
                        << ::testing::PrintToString(*one) << " and " << ::testing::PrintToString(*other);
                }
            }
            stage.click(button);
        }
    }
    ScriptedBackend::uninstall();
}

} // namespace quillet::testing
