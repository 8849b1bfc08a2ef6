#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace quillet::platform::json {

/// A number taken apart as JSON writes it.
struct NumberToken {
    bool negative = false;
    std::string_view integer;
    std::string_view fraction;
    /// Kept within a bound far above any that counts, so that no exponent can overflow it.
    std::int64_t exponent = 0;
    /// Where the number ends.
    const char* end = nullptr;
};

/// The longest number at the start of `text`; nothing if none stands there, or one that JSON does not allow.
[[nodiscard]] std::optional<NumberToken> scanNumber(std::string_view text);

[[nodiscard]] constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace quillet::platform::json
