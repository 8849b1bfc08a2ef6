#pragma once

#include <QColor>

#include <optional>
#include <string_view>

namespace quillet {

/// A colour from six hexadecimal digits, with or without a "#" in front; letter case and blanks around it do
/// not count. Any other length gives nothing. What is not hexadecimal ends the number: "12G000" reads as
/// 0x12, a text without a single digit as black. `alpha` is from 0 to 1.
[[nodiscard]] std::optional<QColor> hexColor(std::string_view hex, double alpha);

} // namespace quillet
