#include "Comparison.hpp"

#include <QPainter>

#include <gtest/gtest.h>

#include <functional>

namespace demo::testing {

namespace {

/// What a picture shows.
struct Scene {
    QSize size{200, 120};
    QColor ground{0xf6, 0xf4, 0xef};
    QString text = "Ciclo del pedido: 60";
    QPointF textAt{16, 40};
    QFont::HintingPreference hinting = QFont::PreferNoHinting;
    bool hasIcon = true;
    QColor badge{0x3a, 0x6b, 0x25};
    int specks = 0;
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
    painter.setPen(QColor(0x2b, 0x2a, 0x27));
    painter.drawText(scene.textAt, scene.text);
    if (scene.hasIcon) {
        painter.setPen(QPen(QColor(0x6b, 0x68, 0x62), 1.5));
        painter.drawRect(QRectF(18, 66, 12, 12));
        painter.drawLine(18, 71, 30, 71);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(scene.badge);
    painter.drawRoundedRect(60, 60, 24, 16, 8, 8);
    painter.end();
    for (int i = 0; i < scene.specks; ++i) {
        // Far enough from each other to stay below what counts in a tile.
        const QPoint at(8 + 16 * (i % 12), 8 + 16 * (i / 12));
        image.setPixel(at, qRgb(0, 0, 0));
        image.setPixel(at + QPoint(1, 0), qRgb(0, 0, 0));
        image.setPixel(at + QPoint(0, 1), qRgb(0, 0, 0));
        image.setPixel(at + QPoint(1, 1), qRgb(0, 0, 0));
    }
    return image;
}

struct Change {
    const char* name;
    bool isSeen;
    std::function<void(Scene&)> make;
};

} // namespace

TEST(Comparison, SeesWhatAPersonWouldSeeAndBearsWhatAnotherVersionDrawsDifferently) {
    const Change changes[] = {
        {"nothing", false, [](Scene&) {}},
        {"hinting", false, [](Scene& scene) { scene.hinting = QFont::PreferFullHinting; }},
        {"a pixel", false, [](Scene& scene) { scene.textAt += QPointF(1, 1); }},
        {"rounding of a colour", false, [](Scene& scene) { scene.ground = QColor(0xf5, 0xf5, 0xee); }},
        {"text moved", true, [](Scene& scene) { scene.textAt.rx() += 6; }},
        {"another number", true, [](Scene& scene) { scene.text.replace("60", "1240"); }},
        {"no icon", true, [](Scene& scene) { scene.hasIcon = false; }},
        {"a lighter badge", true, [](Scene& scene) { scene.badge = scene.badge.lighter(130); }},
        {"another ground", true, [](Scene& scene) { scene.ground = QColor(0xe6, 0xe4, 0xdf); }},
        {"specks all over", true, [](Scene& scene) { scene.specks = 84; }},
        {"another size", true, [](Scene& scene) { scene.size += QSize(1, 0); }},
    };
    for (const auto& [name, isSeen, make] : changes) {
        Scene scene;
        make(scene);
        EXPECT_EQ(compare(drawn({}), drawn(scene)).has_value(), isSeen) << name;
        EXPECT_EQ(compare(drawn(scene), drawn({})).has_value(), isSeen) << name << ", the other way";
    }
}

TEST(Comparison, SaysWhereAndShowsIt) {
    Scene scene;
    scene.hasIcon = false;
    const auto difference = compare(drawn({}), drawn(scene));
    ASSERT_TRUE(difference);
    EXPECT_EQ(difference->description, "it differs within 16x16 at 16, 64");
    EXPECT_EQ(difference->picture.pixel(18, 69), qRgb(255, 0, 0));
    EXPECT_EQ(qRed(difference->picture.pixel(72, 68)), qBlue(difference->picture.pixel(72, 68)));
}

} // namespace demo::testing
