#pragma once

#include <QString>
#include <QStringList>

#include <expected>

namespace demo {

/// Draws every screen and dialog in every theme, language, text size and size into the folder, with an
/// index.html to look at them; the quick form takes fewer values of each. Texts are looked up once a process,
/// so each language gets one of its own. The error is one line for a person. Main thread only.
[[nodiscard]] std::expected<void, QString> drawGallery(const QString& folder, bool quick);

/// One language's part of that, without the index: what such a process does.
[[nodiscard]] std::expected<void, QString> drawGalleryIn(const QString& language, const QString& folder,
                                                         bool quick);

} // namespace demo
