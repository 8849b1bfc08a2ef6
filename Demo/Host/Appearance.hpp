#pragma once

#include "KelDS/KelPalette.hpp"

#include <QString>
#include <QStringList>
#include <Qt>

#include <optional>

namespace demo {

/// How everything looks that the process shows.
struct Appearance {
    kel::KelTheme theme = kel::KelTheme::light;
    /// In percent.
    int textScale = 100;
    bool reducedMotion = false;
    /// Auto is that of the system's language.
    Qt::LayoutDirection direction = Qt::LayoutDirectionAuto;
};

/// Gives the process this appearance; what is on the screen follows. Main thread only.
void apply(const Appearance& appearance);

/// The options of the command line that lead to this appearance.
[[nodiscard]] QStringList optionsFor(const Appearance& appearance);

/// Reads light, dark or contrast; nothing if it is none of them.
[[nodiscard]] std::optional<kel::KelTheme> parseThemeName(const QString& text);
/// Reads a text scale in percent; nothing if it is no whole number, or out of bounds.
[[nodiscard]] std::optional<int> parseTextPercentage(const QString& text);

/// How a theme and a text scale are written, for a person who got it wrong.
[[nodiscard]] QString themeRule();
[[nodiscard]] QString textScaleRule();

} // namespace demo
