#include "KelDS/KelDS.hpp"
#include "Support/Contrast.hpp"
#include "Views/Tokens/HexColor.hpp"

#include <gtest/gtest.h>

namespace quillet::testing {

namespace {

constexpr double forText = 4.5;
constexpr double forShapes = 3;

void expectContrast(const char* what, const QColor& ink, const QColor& ground, double least) {
    EXPECT_GE(contrast(ink, ground), least)
        << what << ", " << ink.name().toStdString() << " on " << ground.name().toStdString();
}

void expectToStandOut(const kel::KelPalette& theme) {
    const QColor background = theme.background;
    const QColor surface = theme.surface;
    const QColor edge = theme.edge;
    const auto veiled = [&](QColor veil) { return painted(veil, kel::KelOpacity::mediumHigh, background); };
    const QColor dimmed = veiled(Qt::black);
    const QColor pressed = painted(theme.onPrimary, kel::KelOpacity::low, theme.primary);
    expectContrast("text on a contained button", theme.onPrimary, theme.primary, forText);
    expectContrast("text on a pressed button", theme.onPrimary, pressed, forText);
    expectContrast("a section sent, its outline", *hexColor("#669842", 1), background, forShapes);
    expectContrast("a section not sent, its outline", *hexColor("#D55336", 1), background, forShapes);
    expectContrast("the ring", *hexColor("#F4AB34", 1), veiled(theme.veil), forShapes);
    expectContrast("the notice below the ring", Qt::white, veiled(theme.veil), forText);
    expectContrast("a dialog's card or its edge",
                   contrast(surface, dimmed) > contrast(edge, dimmed) ? surface : edge, dimmed, forShapes);
    for (const QRgb tag : {theme.success, theme.warning, theme.alert, theme.link}) {
        expectContrast("text on a tag", theme.onTag, tag, forText);
    }
    for (const QColor& ground : {background, surface}) {
        for (const QRgb ink : {theme.highEmphasis, theme.mediumEmphasis, theme.success, theme.alert,
                               theme.warning, theme.link}) {
            expectContrast("text", ink, ground, forText);
            expectContrast("text on a tint of its colour", ink, painted(ink, theme.tint, ground), forText);
        }
        const QColor tile = painted(theme.mediumEmphasis, theme.tint, ground);
        expectContrast("an outlined button's edge, a tab's line", theme.primaryEdge, ground, forShapes);
        expectContrast("a scroll hint", edge, ground, forShapes);
        expectContrast("the focus ring", theme.highEmphasis, ground, forShapes);
        expectContrast("a product's icon on its tile", theme.mediumEmphasis, tile, forShapes);
    }
}

} // namespace

TEST(HexColor, ReadsSixDigitsAndStopsAtTheFirstThatIsNone) {
    const std::pair<const char*, std::optional<QColor>> cases[] = {
        {" \n#f4AB34\t", QColor(0xF4, 0xAB, 0x34)},
        {"F4AB34", QColor(0xF4, 0xAB, 0x34)},
        {"12zz34", QColor(0, 0, 0x12)},
        {"", {}},
        {"#FFF", {}},
        {"#F4AB34#", {}},
    };
    for (const auto& [text, color] : cases) {
        EXPECT_EQ(hexColor(text, 1), color) << text;
    }
    EXPECT_NEAR(hexColor("#F4AB34", 0.5)->alphaF(), 0.5, 0.01);
}

TEST(Palettes, StandOutFromTheirGrounds) {
    for (const kel::KelPalette* theme : {&kel::lightPalette, &kel::darkPalette, &kel::contrastPalette}) {
        expectToStandOut(*theme);
    }
    // Who asks for more contrast gets it.
    expectContrast("text", kel::contrastPalette.mediumEmphasis, kel::contrastPalette.background, 7);
}

} // namespace quillet::testing
