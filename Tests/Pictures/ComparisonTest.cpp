#include "KeptPictures.hpp"

#include <QPainter>

#include <gtest/gtest.h>

namespace demo::testing {

namespace {

/// What a picture shows: a text, an icon and a badge.
struct Scene {
    QSize size{200, 120};
    QColor ground{0xf6, 0xf4, 0xef};
    QString text = "Ciclo del pedido: 60";
    QPointF textAt{16, 40};
    QFont::HintingPreference hinting = QFont::PreferNoHinting;
    QRectF icon{18, 66, 12, 12};
    QColor badge{0x3a, 0x6b, 0x25};
};

QImage drawn(const Scene& scene) {
    QImage image(scene.size, QImage::Format_RGB32);
    image.fill(scene.ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font("Inter");
    font.setPixelSize(14);
    font.setHintingPreference(scene.hinting);
    painter.setFont(font);
    painter.drawText(scene.textAt, scene.text);
    painter.setPen(QPen(QColor(0x6b, 0x68, 0x62), 1.5));
    painter.drawRect(scene.icon);
    painter.setPen(Qt::NoPen);
    painter.setBrush(scene.badge);
    painter.drawRoundedRect(60, 60, 24, 16, 8, 8);
    return image;
}

} // namespace

TEST(Comparison, SeesWhatAPersonWouldSeeAndBearsWhatAnotherVersionDrawsDifferently) {
    const struct {
        const char* change;
        bool isSeen;
        Scene scene;
    } cases[] = {
        {"nothing", false, {}},
        {"hinting", false, {.hinting = QFont::PreferFullHinting}},
        {"a pixel", false, {.textAt = {17, 41}}},
        {"rounding of a colour", false, {.ground = {0xf5, 0xf5, 0xee}}},
        {"text moved", true, {.textAt = {22, 40}}},
        {"another number", true, {.text = "Ciclo del pedido: 1240"}},
        {"no icon", true, {.icon = {}}},
        {"a lighter badge", true, {.badge = QColor(0x3a, 0x6b, 0x25).lighter(130)}},
        {"another ground", true, {.ground = {0xe6, 0xe4, 0xdf}}},
        {"another size", true, {.size = {201, 120}}},
    };
    for (const auto& [change, isSeen, scene] : cases) {
        EXPECT_EQ(!difference(drawn({}), drawn(scene)).isEmpty(), isSeen) << change;
    }
    EXPECT_EQ(difference(drawn({}), drawn({.icon = {}})), QRect(0, 64, 32, 32));
}

} // namespace demo::testing
