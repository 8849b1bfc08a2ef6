#pragma once

#include <QColor>

#include <optional>
#include <string_view>

namespace quillet {

/// Parses a colour of six hexadecimal digits, with or without a leading "#", ignoring letter case and
/// surrounding blanks. Returns nothing for any other length. Parsing stops at the first character that is not
/// a hexadecimal digit: "12G000" gives 0x12, and a text without digits gives black. `alpha` is from 0 to 1.
[[nodiscard]] std::optional<QColor> hexColor(std::string_view hex, double alpha);

} // namespace quillet
