#include "Gallery/GalleryAxes.hpp"
#include "KelDS/KelDS.hpp"
#include "KelDS/KelIcons.hpp"
#include "Kept.hpp"

#include <QMetaEnum>

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

} // namespace

TEST(Tokens, HaveTheColorsOfTheirTheme) {
    QStringList lines;
    for (const GalleryTheme& theme : galleryAxes(false).themes) {
        kel::KelAppearance::current().setTheme(theme.theme);
        lines << QString::fromLatin1(theme.name) << valuesOf<kel::KelColors>();
    }
    kel::KelAppearance::current().setTheme(kel::KelTheme::light);
    expectKept(QStringLiteral("colors"), lines);
}

TEST(Tokens, HaveTheirMeasures) {
    kel::KelAppearance::current().setReducedMotion(false);
    QStringList lines = valuesOf<kel::KelSpacing>() + valuesOf<kel::KelSizes>() +
                        valuesOf<kel::KelBorderRadius>() + valuesOf<kel::KelOpacity>() +
                        valuesOf<kel::KelMotion>();
    kel::KelAppearance::current().setReducedMotion(true);
    lines << valuesOf<kel::KelMotion>();
    kel::KelAppearance::current().setReducedMotion(false);
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
        return QStringLiteral("%1 %2").arg(icon).arg(int{kel::KelIcons::glyph(icon).at(0).unicode()}, 4, 16);
    });
    expectKept(QStringLiteral("measures"), lines);
}

} // namespace demo::testing
