#include "KelCommon/KelLocalized.hpp"
#include "KelDS/KelDS.hpp"
#include "KelDS/KelIcons.hpp"
#include "Kept.hpp"
#include "Resources/ModuleBundle.hpp"
#include "Views/TextKeys.hpp"

#include <QMetaEnum>

#include <gtest/gtest.h>

#include <cmath>

namespace demo::testing {

namespace {

/// The values of a list of tokens, as QML reads them.
template <typename Tokens>
QStringList valuesOf() {
    const Tokens tokens;
    QStringList lines{QString::fromLatin1(tokens.metaObject()->className()) + u':'};
    for (int i = tokens.metaObject()->propertyOffset(); i < tokens.metaObject()->propertyCount(); ++i) {
        const QMetaProperty property = tokens.metaObject()->property(i);
        const QVariant value = property.read(&tokens);
        lines << QStringLiteral("  %1 %2").arg(
            property.name(), value.typeId() == QMetaType::QColor ? value.value<QColor>().name(QColor::HexArgb)
                                                                 : value.toString());
    }
    return lines;
}

QString textOf(const quillet::testing::TextKey& key, const kel::KelBundle& bundle, quint64 count) {
    return key.isCounted ? kel::localizedCount(key.key, bundle)(count) : kel::localized(key.key, bundle);
}

struct Tokens : ::testing::Test {
    ~Tokens() override {
        kel::KelAppearance::current().setTheme(kel::KelTheme::light);
        kel::KelAppearance::current().setReducedMotion(false);
        kel::setLanguage(QStringLiteral("es"));
    }
};

} // namespace

TEST_F(Tokens, HaveTheColorsOfTheirTheme) {
    QStringList lines;
    for (const GalleryTheme& theme : galleryAxes(false).themes) {
        kel::KelAppearance::current().setTheme(theme.theme);
        lines << QString::fromLatin1(theme.name) << valuesOf<kel::KelColors>();
    }
    expectKept(QStringLiteral("colors"), lines);
}

TEST_F(Tokens, HaveTheirMeasures) {
    QStringList lines = valuesOf<kel::KelSpacing>() + valuesOf<kel::KelSizes>() +
                        valuesOf<kel::KelBorderRadius>() + valuesOf<kel::KelOpacity>() +
                        valuesOf<kel::KelMotion>();
    kel::KelAppearance::current().setReducedMotion(true);
    lines << valuesOf<kel::KelMotion>();
    for (const double scale : {0.5, 1.5, 3.0, std::nan("")}) {
        kel::KelAppearance::current().setTextScale(scale);
        lines << QStringLiteral("text scale %1: %2").arg(scale).arg(kel::KelFonts::scale());
    }
    kel::KelAppearance::current().setTextScale(1);
    lines << QStringLiteral("fonts:");
    const auto sizes = QMetaEnum::fromType<kel::KelFonts::Size>();
    for (int i = 0; i < sizes.keyCount(); ++i) {
        const QFont font = kel::KelFonts::font(sizes.value(i), kel::KelFonts::Regular);
        lines << QStringLiteral("  %1 %2 %3").arg(sizes.key(i), font.family()).arg(font.pixelSize());
    }
    const auto weights = QMetaEnum::fromType<kel::KelFonts::Weight>();
    for (int i = 0; i < weights.keyCount(); ++i) {
        lines << QStringLiteral("  %1 %2")
                     .arg(weights.key(i))
                     .arg(int(kel::KelFonts::font(kel::KelFonts::Body1, weights.value(i)).weight()));
    }
    lines << QStringLiteral("icons:");
    const auto icons = QMetaEnum::fromType<kel::KelIcons::Number>();
    for (int i = 0; i < icons.keyCount(); ++i) {
        const QString glyph = kel::KelIcons::glyph(icons.value(i));
        lines << QStringLiteral("  %1 %2 %3")
                     .arg(icons.key(i))
                     .arg(icons.value(i))
                     .arg(glyph.at(0).unicode(), 4, 16);
    }
    expectKept(QStringLiteral("measures"), lines);
}

// Empty texts are Spanish ones, so a missing one shows here as another language's.
TEST_F(Tokens, HaveTheirTextsInEachLanguage) {
    const kel::KelBundle bundles[] = {quillet::moduleBundle(), {":/kel/texts", "kelds"}};
    QStringList lines;
    const auto families = quillet::testing::textFamilies();
    for (std::size_t family = 0; family < families.size(); ++family) {
        for (const auto& key : families[family].keys) {
            lines << QStringLiteral("\"%1\"").arg(key.key);
            for (const char* language : {"es", "pt", "en"}) {
                kel::setLanguage(language);
                lines << QStringLiteral("  %1: %2").arg(language, textOf(key, bundles[family], 1));
                if (key.isCounted) {
                    lines << QStringLiteral("  %1: %2").arg(language, textOf(key, bundles[family], 2));
                }
            }
        }
    }
    expectKept(QStringLiteral("texts"), lines);
}

} // namespace demo::testing
