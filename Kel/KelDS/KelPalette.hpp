#pragma once

#include <QRgb>

namespace kel {

/// `contrast` is for people who need more of it than either of the others gives.
enum class KelTheme { light, dark, contrast };

/// All that tells one theme from another. Text in any of the text colours stands at 4.5:1 or more on
/// background, surface and tints; edges, icons and the focus ring at 3:1 or more.
struct KelPalette {
    QRgb primary, onPrimary, background, surface;
    QRgb highEmphasis, mediumEmphasis, lowEmphasis;
    QRgb success, alert, warning, link;
    /// Text colour of tags.
    QRgb onTag;
    /// The edge of what is clear inside, and the line below a tab: amber where amber is seen on the ground.
    QRgb primaryEdge;
    /// Scroll hints, and the edge of a dialog's card.
    QRgb edge;
    /// What dims a screen while it cannot be used, at an opacity token. It is dark in every theme, as the
    /// ring of a progress indicator would vanish on a light one.
    QRgb veil;
    /// Opacities of hairlines and of tints.
    double hairline, tint;
    /// Whether cards cast one. It is invisible on a dark ground, where a lighter surface or an edge sets a
    /// card off.
    bool shadow;
};

inline constexpr KelPalette lightPalette{
    .primary = 0xffF4AB34,
    .onPrimary = 0xff1F1B14,
    .background = 0xffF7F5F1,
    .surface = 0xffFFFFFF,
    .highEmphasis = 0xff26231F,
    .mediumEmphasis = 0xff6B655C,
    .lowEmphasis = 0xffBDB7AE,
    .success = 0xff3F6B25,
    .alert = 0xffB93A1C,
    .warning = 0xff8A5A00,
    .link = 0xff1B5FAA,
    .onTag = 0xffFFFFFF,
    .primaryEdge = 0xffB97B00,
    .edge = 0xff8A847A,
    .veil = 0xff26231F,
    .hairline = 0.09,
    .tint = 0.10,
    .shadow = true,
};
inline constexpr KelPalette darkPalette{
    .primary = 0xffF4AB34,
    .onPrimary = 0xff1F1B14,
    .background = 0xff141210,
    .surface = 0xff211E1A,
    .highEmphasis = 0xffF4F0EA,
    .mediumEmphasis = 0xffB8B0A5,
    .lowEmphasis = 0xff57514A,
    .success = 0xff9DCC78,
    .alert = 0xffFF9C80,
    .warning = 0xffF2C46B,
    .link = 0xff93C3FF,
    .onTag = 0xff1F1B14,
    .primaryEdge = 0xffF4AB34,
    .edge = 0xff8A847A,
    .veil = 0xff000000,
    .hairline = 0.12,
    .tint = 0.16,
    .shadow = false,
};
inline constexpr KelPalette contrastPalette{
    .primary = 0xffFFC24D,
    .onPrimary = 0xff000000,
    .background = 0xff000000,
    .surface = 0xff000000,
    .highEmphasis = 0xffFFFFFF,
    .mediumEmphasis = 0xffE6E6E6,
    .lowEmphasis = 0xffB0B0B0,
    .success = 0xffA6F07A,
    .alert = 0xffFFB3A1,
    .warning = 0xffFFD84D,
    .link = 0xffA3D1FF,
    .onTag = 0xff000000,
    .primaryEdge = 0xffFFC24D,
    .edge = 0xffFFFFFF,
    .veil = 0xff000000,
    .hairline = 0.60,
    .tint = 0.20,
    .shadow = false,
};

} // namespace kel
