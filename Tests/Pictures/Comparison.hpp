#pragma once

#include <QImage>
#include <QRect>

#include <optional>
#include <string>

namespace demo::testing {

/// How a picture differs from the one that is kept, as a person would see it.
struct Difference {
    /// What is different and where, for a person.
    std::string description;
    /// The actual picture in grey, with what differs in red.
    QImage picture;
};

/// Nothing if a person would take the two for the same. Another version of Qt draws the edges of letters
/// differently and may move them by a pixel: both pictures are blurred a little, and each pixel is compared
/// with those around its place. What is left counts in tiles of the size of a small icon, so that one that is
/// missing is not lost in a large picture.
[[nodiscard]] std::optional<Difference> compare(const QImage& expected, const QImage& actual);

} // namespace demo::testing
