#pragma once

#include <QImage>
#include <QString>

#include <optional>
#include <string>

namespace demo::testing {

/// Whether the pictures are to be renewed rather than compared, which an environment variable asks for.
[[nodiscard]] bool renewsPictures();

/// Keeps this picture as the one to compare with; false if it cannot be written.
[[nodiscard]] bool keepPicture(const QString& name, const QImage& picture);

/// How the picture differs from the one that is kept, for a person; empty if it does not. What is expected,
/// what there is and what differs is then left in the build folder.
[[nodiscard]] std::string differenceFromKept(const QString& name, const QImage& picture);

} // namespace demo::testing
