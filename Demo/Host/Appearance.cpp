#include "Appearance.hpp"

#include "KelDS/KelAppearance.hpp"

#include <QGuiApplication>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <utility>

namespace demo {

namespace {

constexpr std::array<std::pair<kel::KelTheme, const char*>, 3> themes{
    {{kel::KelTheme::light, "light"}, {kel::KelTheme::dark, "dark"}, {kel::KelTheme::contrast, "contrast"}}};
constexpr int leastTextScale = 100;
constexpr int mostTextScale = 200;

QString nameOf(kel::KelTheme theme) {
    const auto* const found = std::ranges::find(themes, theme, &std::pair<kel::KelTheme, const char*>::first);
    return QString::fromLatin1(found->second);
}

} // namespace

void apply(const Appearance& appearance) {
    auto& current = kel::KelAppearance::current();
    current.setTheme(appearance.theme);
    current.setTextScale(appearance.textScale / 100.0);
    current.setReducedMotion(appearance.reducedMotion);
    QGuiApplication::setLayoutDirection(appearance.direction);
}

QStringList optionsFor(const Appearance& appearance) {
    QStringList options{QStringLiteral("--theme"), nameOf(appearance.theme), QStringLiteral("--text-scale"),
                        QString::number(appearance.textScale)};
    if (appearance.reducedMotion) {
        options << QStringLiteral("--reduced-motion");
    }
    if (appearance.direction == Qt::RightToLeft) {
        options << QStringLiteral("--rtl");
    }
    return options;
}

std::optional<kel::KelTheme> parseThemeName(const QString& text) {
    const auto* const found = std::ranges::find_if(
        themes, [&text](const auto& theme) { return text == QLatin1String(theme.second); });
    return found == themes.end() ? std::nullopt : std::optional(found->first);
}

std::optional<int> parseTextPercentage(const QString& text) {
    // Three digits are never too many for a number.
    static const QRegularExpression form(QStringLiteral("\\A[0-9]{3}\\z"));
    const int scale = form.match(text).hasMatch() ? text.toInt() : 0;
    return scale >= leastTextScale && scale <= mostTextScale ? std::optional(scale) : std::nullopt;
}

QString themeRule() {
    return QStringLiteral("light, dark or contrast");
}

QString textScaleRule() {
    return QStringLiteral("a whole number of percent, from %1 to %2").arg(leastTextScale).arg(mostTextScale);
}

} // namespace demo
