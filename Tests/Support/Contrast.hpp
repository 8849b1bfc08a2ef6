#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

namespace quillet::testing {

/// Relative luminance, as the Web Content Accessibility Guidelines 2.2 define it.
inline double luminance(const QColor& color) {
    const auto linear = [](float channel) {
        return channel <= 0.04045F ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// Contrast ratio of two opaque colours, from 1 to 21, by the same guidelines.
inline double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// What is seen of a colour that lies on a ground at an opacity.
inline QColor painted(const QColor& color, double opacity, const QColor& ground) {
    const auto mix = [opacity](int over, int under) {
        return static_cast<int>(std::lround(opacity * over + (1 - opacity) * under));
    };
    return {mix(color.red(), ground.red()), mix(color.green(), ground.green()),
            mix(color.blue(), ground.blue())};
}

} // namespace quillet::testing
