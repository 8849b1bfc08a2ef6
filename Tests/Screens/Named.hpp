#pragma once

#include "Gallery/GalleryAxes.hpp"
#include "Gallery/GalleryScreens.hpp"

#include <algorithm>

namespace demo::testing {

/// A screen of the gallery by its name.
[[nodiscard]] inline GalleryScreen galleryScreen(const QString& name) {
    const auto screens = galleryScreens(false);
    return *std::ranges::find(screens, name, &GalleryScreen::name);
}

/// The same of a theme.
[[nodiscard]] inline GalleryTheme galleryTheme(const QString& name) {
    const auto themes = galleryAxes(false).themes;
    return *std::ranges::find(themes, name, [](const GalleryTheme& theme) { return QString(theme.name); });
}

} // namespace demo::testing
