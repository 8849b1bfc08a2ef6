#pragma once

#include <QRgb>

#include <array>

/// The design system's values, each in one place. Lengths are in device-independent pixels. QML reads them
/// through the singletons KelColors, KelFonts, KelSpacing, KelSizes, KelRadius, KelOpacity and KelMotion; C++
/// reads them here.
namespace kel {

enum class KelTheme { light, dark };

/// One theme's colours. Text in any of the text colours stands at 4.5:1 or more on background and surface.
struct KelPalette {
    QRgb primary, onPrimary, background, surface;
    QRgb highEmphasis, mediumEmphasis, lowEmphasis;
    QRgb success, alert, warning, link;
    /// What a solid tag writes in, and how strong hairlines and tints are drawn on this theme's ground.
    QRgb onTag;
    double hairline, tint;
};

inline constexpr KelPalette kLightPalette{0xffF4AB34, 0xff1F1B14, 0xffF7F5F1, 0xffFFFFFF, 0xff26231F,
                                          0xff6B655C, 0xffBDB7AE, 0xff3F6B25, 0xffB93A1C, 0xff8A5A00,
                                          0xff1B5FAA, 0xffFFFFFF, 0.09,       0.10};
inline constexpr KelPalette kDarkPalette{0xffF4AB34, 0xff1F1B14, 0xff141210, 0xff211E1A, 0xffF4F0EA,
                                         0xffB8B0A5, 0xff57514A, 0xff9DCC78, 0xffFF9C80, 0xffF2C46B,
                                         0xff93C3FF, 0xff1F1B14, 0.12,       0.16};

/// The colours of tags, by index.
enum class KelTagColor { primary, success, warning, alert, link };

namespace spacing {
inline constexpr int micro = 4, tiny = 8, small = 16, semi = 24, standard = 32;
}
namespace sizes {
inline constexpr int micro = 4, tiny = 8, small = 16, standard = 24, semi = 32, semiX = 40, medium = 48,
                     mediumX = 56, large = 64;
/// The least that a finger hits without fail.
inline constexpr int touch = 44;
} // namespace sizes
namespace radius {
inline constexpr int small = 4, medium = 8, large = 16;
/// Buttons sit between two steps of the scale.
inline constexpr int button = 12;
} // namespace radius
namespace opacity {
inline constexpr double disabled = 0.12, low = 0.16, mediumLow = 0.32, medium = 0.56, mediumHigh = 0.80,
                        high = 0.92;
}
/// How long things take to move, in milliseconds.
namespace motion {
inline constexpr int press = 80, panel = 200, dialogIn = 200, dialogOut = 700, page = 300;
}

/// Pixel sizes by font size index.
inline constexpr std::array<int, 13> kFontSizes{96, 60, 48, 34, 24, 20, 16, 14, 16, 14, 14, 12, 10};
/// From this pixel size up the display cut of the face is used.
inline constexpr int kDisplayFrom = 24;

} // namespace kel
