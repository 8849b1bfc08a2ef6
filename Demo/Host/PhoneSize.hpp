#pragma once

#include <QSize>
#include <QString>

#include <array>
#include <optional>

namespace demo {

/// What the phone-sized area measures where nobody says otherwise.
inline constexpr QSize usualPhoneSize{390, 844};
/// What it may measure, each way.
inline constexpr int leastPhoneSide = 320;
inline constexpr int mostPhoneSide = 1280;
/// The sizes that a person chooses from: small and usual phone, the latter on its side, tablet, desktop.
inline constexpr std::array phoneSizes{QSize(320, 568), usualPhoneSize, QSize(844, 390), QSize(768, 1024),
                                       QSize(1280, 800)};

/// Reads WxH, such as 320x568; nothing if it is no such text, or one of the sides is out of bounds.
[[nodiscard]] std::optional<QSize> parsePhoneSize(const QString& text);

/// How a size is written, for a person who got it wrong.
[[nodiscard]] QString phoneSizeRule();

} // namespace demo
