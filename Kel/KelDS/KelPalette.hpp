#pragma once

#include <QRgb>

namespace kel {

enum class KelTheme { light, dark };

/// One theme's colours. Text in any of the text colours stands at 4.5:1 or more on background and surface.
struct KelPalette {
    QRgb primary, onPrimary, background, surface;
    QRgb highEmphasis, mediumEmphasis, lowEmphasis;
    QRgb success, alert, warning, link;
    /// Text colour of tags, and the opacity of hairlines and tints on this theme's background.
    QRgb onTag;
    double hairline, tint;
};

inline constexpr KelPalette lightPalette{0xffF4AB34, 0xff1F1B14, 0xffF7F5F1, 0xffFFFFFF, 0xff26231F,
                                         0xff6B655C, 0xffBDB7AE, 0xff3F6B25, 0xffB93A1C, 0xff8A5A00,
                                         0xff1B5FAA, 0xffFFFFFF, 0.09,       0.10};
inline constexpr KelPalette darkPalette{0xffF4AB34, 0xff1F1B14, 0xff141210, 0xff211E1A, 0xffF4F0EA,
                                        0xffB8B0A5, 0xff57514A, 0xff9DCC78, 0xffFF9C80, 0xffF2C46B,
                                        0xff93C3FF, 0xff1F1B14, 0.12,       0.16};

} // namespace kel
