#include "Gallery/GalleryAxes.hpp"
#include "KelCommon/KelLocalized.hpp"
#include "KelDS/KelDS.hpp"
#include "KelDS/KelIcons.hpp"
#include "Kept.hpp"
#include "PseudoTexts.hpp"
#include "Resources/ModuleBundle.hpp"

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

/// The values of an enumeration, and what each stands for.
template <typename Enum>
QStringList valuesOf(const std::function<QString(int)>& meaning) {
    const auto values = QMetaEnum::fromType<Enum>();
    QStringList lines;
    for (int i = 0; i < values.keyCount(); ++i) {
        lines << QStringLiteral("  %1 %2").arg(values.key(i), meaning(values.value(i)));
    }
    return lines;
}

/// A key, and its text in each language that there is a table of.
QStringList textsOf(const char* key, const kel::KelBundle& bundle, bool isCounted = false) {
    QStringList lines{QStringLiteral("\"%1\"").arg(key)};
    for (const char* language : {"es", "pt", "en", "xa", "xb"}) {
        kel::setLanguage(language);
        const QString line = QStringLiteral("  %1: ").arg(language) + "%1";
        if (!isCounted) {
            lines << line.arg(kel::localized(key, bundle));
            continue;
        }
        for (const quint64 count : {0, 1, 2, 5}) {
            lines << line.arg(kel::localizedCount(key, bundle)(count));
        }
    }
    return lines;
}

struct Tokens : ::testing::Test {
    ~Tokens() override {
        kel::KelAppearance::current().setTheme(kel::KelTheme::light);
        kel::KelAppearance::current().setReducedMotion(false);
        kel::setHostTexts({});
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
    lines << "fonts:" << valuesOf<kel::KelFonts::Size>([](int size) {
        const QFont font = kel::KelFonts::font(size, kel::KelFonts::Regular);
        return QStringLiteral("%1 %2").arg(font.family()).arg(font.pixelSize());
    });
    lines << valuesOf<kel::KelFonts::Weight>([](int weight) {
        return QString::number(kel::KelFonts::font(kel::KelFonts::Body1, weight).weight());
    });
    lines << "icons:" << valuesOf<kel::KelIcons::Number>([](int icon) {
        return QStringLiteral("%1 %2").arg(icon).arg(kel::KelIcons::glyph(icon).at(0).unicode(), 4, 16);
    });
    expectKept(QStringLiteral("measures"), lines);
}

// A missing text is Spanish, as what stands in for it.
TEST_F(Tokens, HaveTheirTextsInEachLanguage) {
    usePseudoTexts();
    QStringList lines;
    // The keys, out of the lists that the code itself is made of.
#define QUILLET_TEXT(name, key) lines << textsOf(key, quillet::moduleBundle());
#define QUILLET_NUMBERED_TEXT(name, key) lines << textsOf(key, quillet::moduleBundle());
#define QUILLET_COUNTED_TEXT(name, key) lines << textsOf(key, quillet::moduleBundle(), true);
#include "Resources/LocalizationKeys.def"
#define KEL_TEXT(name, key) lines << textsOf(key, {":/kel/texts", "kelds"});
#include "KelDS/KelTextKeys.def"
    expectKept(QStringLiteral("texts"), lines);
}

} // namespace demo::testing
