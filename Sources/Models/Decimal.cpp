#include "Models/Decimal.hpp"

#include "Models/Json/Number.hpp"

#include <algorithm>

namespace quillet {

namespace {

__extension__ using Wide = unsigned __int128;

constexpr int halfBits = 64;

/// Gathers a number's digits, of which it keeps the most significant ones.
class DigitSum {
public:
    void add(std::string_view digits) {
        for (const char digit : digits) {
            add(static_cast<unsigned>(digit - '0'));
        }
    }

    [[nodiscard]] bool exact() const { return firstDropped_ == 0 && !moreDropped_; }
    [[nodiscard]] std::int64_t dropped() const { return dropped_; }

    [[nodiscard]] Wide rounded() const {
        const bool tie = firstDropped_ == 5 && !moreDropped_;
        const bool up = tie ? sum_ % 2 == 1 : firstDropped_ >= 5;
        return sum_ + (up ? 1 : 0);
    }

private:
    void add(unsigned digit) {
        if (kept_ < Decimal::maximumDigits) {
            sum_ = sum_ * 10 + digit;
            // Leading zeros are not significant.
            kept_ += sum_ != 0;
        } else if (dropped_++ == 0) {
            firstDropped_ = digit;
        } else {
            moreDropped_ = moreDropped_ || digit != 0;
        }
    }

    Wide sum_ = 0;
    int kept_ = 0;
    std::int64_t dropped_ = 0;
    unsigned firstDropped_ = 0;
    bool moreDropped_ = false;
};

} // namespace

std::optional<Decimal> Decimal::parse(std::string_view text) {
    const auto number = json::scanNumber(text);
    return number && number->end == text.data() + text.size() ? json::toDecimal(*number) : std::nullopt;
}

std::optional<Decimal> Decimal::fromToken(const json::NumberToken& number, bool& exact) {
    DigitSum digits;
    digits.add(number.integer);
    digits.add(number.fraction);
    exact = digits.exact();
    Wide coefficient = digits.rounded();
    if (coefficient == 0) {
        return Decimal();
    }
    std::int64_t exponent =
        number.exponent - static_cast<std::int64_t>(number.fraction.size()) + digits.dropped();
    for (; coefficient % 10 == 0; coefficient /= 10) {
        ++exponent;
    }
    if (exponent < -maximumExponent || exponent > maximumExponent) {
        return std::nullopt;
    }
    Decimal decimal;
    decimal.low_ = static_cast<std::uint64_t>(coefficient);
    decimal.high_ = static_cast<std::uint64_t>(coefficient >> halfBits);
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
        if (__builtin_mul_overflow(magnitude, std::uint64_t{10}, &magnitude)) {
            return std::nullopt;
        }
    }
    return magnitude;
}

std::string Decimal::toString() const {
    if (*this == Decimal()) {
        return "0";
    }
    std::string digits;
    for (Wide rest = (Wide{high_} << halfBits) | low_; rest != 0; rest /= 10) {
        digits += static_cast<char>('0' + static_cast<int>(rest % 10));
    }
    std::reverse(digits.begin(), digits.end());
    if (exponent_ >= 0) {
        digits.append(static_cast<std::size_t>(exponent_), '0');
    } else {
        const auto fraction = static_cast<std::size_t>(-exponent_);
        // One digit at least stands before the point.
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

} // namespace quillet
