#pragma once

#include <QString>

#include <expected>

namespace demo {

/// Writes the page that shows a gallery's pictures into its folder. It needs no network. The error is one
/// line for a person.
[[nodiscard]] std::expected<void, QString> writeGalleryIndex(const QString& folder, bool quick);

} // namespace demo
