#pragma once

#include "Gallery/GalleryAxes.hpp"
#include "Gallery/GalleryScreens.hpp"

#include <QDir>

#include <gtest/gtest.h>

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

/// The names of the files in a folder that are called so, without their suffix of three letters. Each that is
/// kept is compared, so that a new one begins as an empty file, which is then renewed.
[[nodiscard]] inline std::vector<std::string> keptNames(const QString& folder, const QString& pattern) {
    std::vector<std::string> names;
    for (const QString& file : QDir(folder).entryList({pattern})) {
        names.push_back(file.chopped(4).toStdString());
    }
    return names;
}

/// The name of a test that is for what has this name.
[[nodiscard]] inline std::string testName(const ::testing::TestParamInfo<std::string>& instance) {
    return QString::fromStdString(instance.param).remove(u'-').replace(u'.', u'_').toStdString();
}

} // namespace demo::testing
