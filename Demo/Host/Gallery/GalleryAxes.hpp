#pragma once

#include "KelDS/KelPalette.hpp"

#include <QSize>
#include <QString>

#include <vector>

namespace demo {

/// Values along one axis of the gallery. Those that are `quick` are in its quick form too.
struct GalleryTheme {
    const char* name;
    kel::KelTheme theme;
    bool quick;
};
struct GalleryLanguage {
    const char* code;
    bool quick;
};
struct GalleryTextSize {
    int percent;
    bool quick;
};
struct GallerySize {
    QSize size;
    bool quick;
};

/// What a screen is shown in. The screens themselves are in GalleryScreens.
struct GalleryAxes {
    std::vector<GalleryTheme> themes;
    std::vector<GalleryLanguage> languages;
    std::vector<GalleryTextSize> textSizes;
    std::vector<GallerySize> sizes;
};

/// The axes with all their values, or with those of the quick form.
[[nodiscard]] GalleryAxes galleryAxes(bool quick);

/// How one picture looks.
struct GalleryLook {
    GalleryTheme theme;
    GalleryLanguage language;
    GalleryTextSize textSize;
    QSize size;
};

/// The name of a picture's file: screen, theme, language, text size and size, as
/// "summary.dark.pt.150.390x844.png".
[[nodiscard]] QString pictureName(const QString& screen, const GalleryLook& look);

} // namespace demo
