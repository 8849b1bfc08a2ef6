#pragma once

#include "Platform/Json/NumberToken.hpp"
#include "Quillet/Platform/Decimal.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace quillet::platform::json {

/// The exact value, however it is written (1.0, 1e2, 100e-2, -0); nothing if it is not whole or out of range.
[[nodiscard]] std::optional<std::uint64_t> toUnsigned(const NumberToken& number);
[[nodiscard]] std::optional<std::int64_t> toSigned(const NumberToken& number);

/// The value with digits beyond the 38th significant one rounded; nothing if its power of ten is out of
/// range.
[[nodiscard]] std::optional<Decimal> toDecimal(const NumberToken& number);

/// Fast paths for short plain numbers that end where the next token begins, which nearly all do. They return
/// false for any other text, which `scanNumber` then reads.

[[nodiscard]] inline bool readPlainUnsigned(const char* text, const char* end, std::uint64_t& value) {
    // Nineteen digits always fit.
    constexpr std::ptrdiff_t mostDigits = 19;
    if (end - text > mostDigits || !isDigit(*text) || (*text == '0' && end - text > 1)) {
        return false;
    }
    std::uint64_t sum = 0;
    for (; text != end; ++text) {
        if (!isDigit(*text)) {
            return false;
        }
        sum = sum * 10 + static_cast<std::uint64_t>(*text - '0');
    }
    value = sum;
    return true;
}

[[nodiscard]] inline bool readPlainDecimal(const char* text, const char* end, Decimal& value) {
    // Eighteen digits always fit.
    constexpr std::ptrdiff_t mostBytes = 18;
    const bool negative = *text == '-';
    text += negative;
    const bool leadingZero = *text == '0' && end - text > 1 && text[1] != '.';
    if (end - text > mostBytes || leadingZero || !isDigit(*text) || end[-1] == '.') {
        return false;
    }
    std::int64_t coefficient = 0;
    std::int32_t fractionDigits = 0;
    for (; text != end && isDigit(*text); ++text) {
        coefficient = coefficient * 10 + (*text - '0');
    }
    if (text != end && *text == '.') {
        fractionDigits = static_cast<std::int32_t>(end - ++text);
        for (; text != end && isDigit(*text); ++text) {
            coefficient = coefficient * 10 + (*text - '0');
        }
    }
    if (text != end) {
        return false;
    }
    value = Decimal(negative ? -coefficient : coefficient, -fractionDigits);
    return true;
}

} // namespace quillet::platform::json
