#include "Platform/Json/NumberToken.hpp"

#include <algorithm>

namespace quillet::platform::json {

namespace {

/// Takes the digits at the start of `rest`.
std::string_view takeDigits(std::string_view& rest) {
    const std::string_view digits = rest.substr(
        0, static_cast<std::size_t>(
               std::find_if(rest.begin(), rest.end(), [](char c) { return !isDigit(c); }) - rest.begin()));
    rest.remove_prefix(digits.size());
    return digits;
}

bool take(std::string_view& rest, char c) {
    const bool there = rest.starts_with(c);
    rest.remove_prefix(there ? 1 : 0);
    return there;
}

std::int64_t boundedExponent(std::string_view digits, bool negative) {
    // Far more than a body's length, so that no number of leading digits can bring such an exponent back into
    // range.
    constexpr std::int64_t bound = std::int64_t{1} << 40;
    std::int64_t exponent = 0;
    for (const char digit : digits) {
        exponent = std::min(exponent * 10 + (digit - '0'), bound);
    }
    return negative ? -exponent : exponent;
}

} // namespace

std::optional<NumberToken> scanNumber(std::string_view text) {
    NumberToken number;
    number.negative = take(text, '-');
    number.integer = takeDigits(text);
    if (number.integer.empty() || (number.integer.size() > 1 && number.integer.front() == '0')) {
        return std::nullopt;
    }
    if (take(text, '.')) {
        number.fraction = takeDigits(text);
        if (number.fraction.empty()) {
            return std::nullopt;
        }
    }
    if (take(text, 'e') || take(text, 'E')) {
        const bool negative = take(text, '-');
        if (!negative) {
            take(text, '+');
        }
        const std::string_view digits = takeDigits(text);
        if (digits.empty()) {
            return std::nullopt;
        }
        number.exponent = boundedExponent(digits, negative);
    }
    number.end = text.data();
    return number;
}

} // namespace quillet::platform::json
