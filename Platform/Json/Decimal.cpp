#include "Quillet/Platform/Decimal.hpp"

#include "Platform/Json/NumberToken.hpp"

#include <algorithm>
#include <limits>

namespace quillet::platform {

namespace {

/// An unsigned 128-bit integer with the operations on decimal digits that are needed here. Compilers for
/// 32-bit targets have no such type.
struct Coefficient {
    std::uint64_t low = 0;
    std::uint64_t high = 0;

    bool operator==(const Coefficient&) const = default;

    void appendDigit(unsigned digit) {
        // Multiplies by ten; the low half is multiplied 32 bits at a time, which leaves room for the carries.
        const std::uint64_t lowest = (low & halfMask) * 10 + digit;
        const std::uint64_t middle = (low >> 32) * 10 + (lowest >> 32);
        low = (middle << 32) | (lowest & halfMask);
        high = high * 10 + (middle >> 32);
    }

    /// Divides by ten and returns the remainder.
    unsigned removeDigit() {
        const std::uint64_t highRest = high % 10;
        const std::uint64_t middle = (highRest << 32) | (low >> 32);
        const std::uint64_t lowest = ((middle % 10) << 32) | (low & halfMask);
        high /= 10;
        low = ((middle / 10) << 32) | (lowest / 10);
        return static_cast<unsigned>(lowest % 10);
    }

    void increment() { high += ++low == 0; }

private:
    static constexpr std::uint64_t halfMask = 0xffff'ffff;
};

/// Accumulates a number's digits and keeps the most significant ones.
class DigitSum {
public:
    void add(std::string_view digits) {
        for (const char digit : digits) {
            add(static_cast<unsigned>(digit - '0'));
        }
    }

    [[nodiscard]] bool exact() const { return firstDropped_ == 0 && !moreDropped_; }
    [[nodiscard]] std::int64_t dropped() const { return dropped_; }

    [[nodiscard]] Coefficient rounded() const {
        const bool tie = firstDropped_ == 5 && !moreDropped_;
        const bool up = tie ? sum_.low % 2 == 1 : firstDropped_ >= 5;
        Coefficient rounded = sum_;
        if (up) {
            rounded.increment();
        }
        return rounded;
    }

private:
    void add(unsigned digit) {
        if (kept_ < Decimal::maximumDigits) {
            sum_.appendDigit(digit);
            // Leading zeros are not significant.
            kept_ += sum_ != Coefficient();
        } else if (dropped_++ == 0) {
            firstDropped_ = digit;
        } else {
            moreDropped_ = moreDropped_ || digit != 0;
        }
    }

    Coefficient sum_;
    int kept_ = 0;
    std::int64_t dropped_ = 0;
    unsigned firstDropped_ = 0;
    bool moreDropped_ = false;
};

} // namespace

std::optional<Decimal> Decimal::parse(std::string_view text) {
    const auto number = json::scanNumber(text);
    if (!number || number->end != text.data() + text.size()) {
        return std::nullopt;
    }
    bool exact = false;
    return fromToken(*number, exact);
}

std::optional<Decimal> Decimal::fromToken(const json::NumberToken& number, bool& exact) {
    DigitSum digits;
    digits.add(number.integer);
    digits.add(number.fraction);
    exact = digits.exact();
    Coefficient coefficient = digits.rounded();
    if (coefficient == Coefficient()) {
        return Decimal();
    }
    std::int64_t exponent =
        number.exponent - static_cast<std::int64_t>(number.fraction.size()) + digits.dropped();
    for (auto shorter = coefficient; shorter.removeDigit() == 0; coefficient = shorter) {
        ++exponent;
    }
    if (exponent < -maximumExponent || exponent > maximumExponent) {
        return std::nullopt;
    }
    Decimal decimal;
    decimal.low_ = coefficient.low;
    decimal.high_ = coefficient.high;
    decimal.exponent_ = static_cast<std::int32_t>(exponent);
    decimal.negative_ = number.negative;
    return decimal;
}

std::optional<std::uint64_t> Decimal::wholeMagnitude() const {
    if (high_ != 0 || exponent_ < 0) {
        return std::nullopt;
    }
    std::uint64_t magnitude = low_;
    for (std::int32_t i = 0; i < exponent_; ++i) {
        if (magnitude > std::numeric_limits<std::uint64_t>::max() / 10) {
            return std::nullopt;
        }
        magnitude *= 10;
    }
    return magnitude;
}

std::string Decimal::toString() const {
    if (*this == Decimal()) {
        return "0";
    }
    std::string digits;
    for (Coefficient rest{low_, high_}; rest != Coefficient();) {
        digits += static_cast<char>('0' + rest.removeDigit());
    }
    std::reverse(digits.begin(), digits.end());
    if (exponent_ >= 0) {
        digits.append(static_cast<std::size_t>(exponent_), '0');
    } else {
        const auto fraction = static_cast<std::size_t>(-exponent_);
        // At least one digit is written before the point.
        if (digits.size() <= fraction) {
            digits.insert(0, fraction + 1 - digits.size(), '0');
        }
        digits.insert(digits.size() - fraction, 1, '.');
    }
    if (negative_) {
        digits.insert(0, 1, '-');
    }
    return digits;
}

} // namespace quillet::platform
