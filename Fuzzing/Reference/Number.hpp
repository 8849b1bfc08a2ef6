#pragma once

#include <algorithm>
#include <charconv>
#include <concepts>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quillet::fuzzing {

/// A number as digits on paper, of which none is ever lost; equal numbers have equal members. Written to be
/// compared with, in as plain a way as possible.
struct PaperNumber {
    bool negative = false;
    /// Without zeros in front and behind; empty for zero.
    std::string digits;
    /// The power of ten at which the last digit stands.
    long long exponent = 0;

    bool operator==(const PaperNumber&) const = default;

    /// As JSON writes it.
    [[nodiscard]] std::string text() const {
        return std::string(negative ? "-" : "") + (digits.empty() ? "0" : digits) + "e" +
               std::to_string(exponent);
    }
};

inline PaperNumber tidied(PaperNumber number) {
    number.digits.erase(0, number.digits.find_first_not_of('0'));
    while (number.digits.ends_with('0')) {
        number.digits.pop_back();
        ++number.exponent;
    }
    return number.digits.empty() ? PaperNumber() : number;
}

/// Reads a whole text that JSON calls a number; nothing for any other.
inline std::optional<PaperNumber> paperNumber(std::string_view text) {
    const auto take = [&](std::string_view any) {
        const bool there = !text.empty() && any.contains(text.front());
        text.remove_prefix(there ? 1 : 0);
        return there;
    };
    const auto takeDigits = [&] {
        const std::string digits(text.substr(0, text.find_first_not_of("0123456789")));
        text.remove_prefix(digits.size());
        return digits;
    };
    PaperNumber number{take("-"), takeDigits(), 0};
    bool good = !number.digits.empty() && (number.digits.size() == 1 || number.digits.front() != '0');
    if (take(".")) {
        const std::string fraction = takeDigits();
        good = good && !fraction.empty();
        number.digits += fraction;
        number.exponent = -static_cast<long long>(fraction.size());
    }
    if (take("eE")) {
        const bool down = take("-");
        const bool signedUp = !down && take("+");
        std::string digits = takeDigits();
        good = good && !digits.empty() && !(down && signedUp);
        // Twelve digits are more than any text is long.
        digits.erase(0, digits.find_first_not_of('0'));
        const long long power = std::stoll("0" + (digits.size() > 12 ? std::string(12, '9') : digits));
        number.exponent += down ? -power : power;
    }
    return good && text.empty() ? std::optional(tidied(number)) : std::nullopt;
}

/// The number with at most `most` digits, of which the last is rounded half to even.
inline PaperNumber rounded(PaperNumber number, std::size_t most) {
    if (number.digits.size() <= most) {
        return number;
    }
    const std::string dropped = number.digits.substr(most);
    number.digits.resize(most);
    number.exponent += static_cast<long long>(dropped.size());
    // What was dropped has no zero behind, so that nothing but a lone five is half.
    const bool odd = (number.digits.back() - '0') % 2 == 1;
    if (dropped > "5" || (dropped == "5" && odd)) {
        const std::size_t last = number.digits.find_last_not_of('9') + 1;
        number.digits.replace(last, std::string::npos, std::string(most - last, '0'));
        if (last == 0) {
            number.digits.insert(0, "1");
        } else {
            ++number.digits[last - 1];
        }
    }
    return tidied(number);
}

/// The number as an `Integer`, if it is whole and in range.
template <std::integral Integer>
std::optional<Integer> whole(const PaperNumber& number) {
    constexpr long long longest = 20;
    if (number.exponent < 0 || number.exponent > longest) {
        return std::nullopt;
    }
    std::string text(number.negative ? "-" : "");
    text.append(number.digits).append(static_cast<std::size_t>(number.exponent), '0');
    Integer value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool good = number.digits.empty() || (error == std::errc() && end == text.data() + text.size());
    return good ? std::optional(value) : std::nullopt;
}

} // namespace quillet::fuzzing
