#include "Views/Tokens/HexColor.hpp"

#include <charconv>

namespace quillet {

std::optional<QColor> hexColor(std::string_view hex, double alpha) {
    constexpr std::string_view blanks = " \t\n\v\f\r";
    const auto first = hex.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return std::nullopt;
    }
    hex = hex.substr(first, hex.find_last_not_of(blanks) - first + 1);
    if (hex.starts_with('#')) {
        hex.remove_prefix(1);
    }
    if (hex.size() != 6) {
        return std::nullopt;
    }
    unsigned value = 0;
    std::from_chars(hex.data(), hex.data() + hex.size(), value, 16);
    QColor color(static_cast<int>((value >> 16) & 0xFF), static_cast<int>((value >> 8) & 0xFF),
                 static_cast<int>(value & 0xFF));
    color.setAlphaF(static_cast<float>(alpha));
    return color;
}

} // namespace quillet
