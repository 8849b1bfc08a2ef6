#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace quillet::platform::json {

/// Up to eight characters of a number in one register, filled up with zeros in front. All are looked at
/// together: a loop over digits ends at another one each time, which no processor predicts.
class DigitBlock {
public:
    static constexpr std::ptrdiff_t size = 8;

    /// The characters from `text` to `end`, one to eight of them. Eight bytes must be readable at `text`.
    DigitBlock(const char* text, const char* end) {
        std::memcpy(&bytes_, text, size);
        if constexpr (std::endian::native == std::endian::big) {
            bytes_ = std::byteswap(bytes_);
        }
        // The first character is the lowest byte.
        const auto missing = 8 * (size - (end - text));
        bytes_ = (bytes_ << missing) | (zeros & ((std::uint64_t{1} << missing) - 1));
    }

    [[nodiscard]] bool isDigits() const {
        // Beyond '9' the sum sets a byte's highest bit, below '0' the difference.
        return (((bytes_ + 0x4646464646464646) | (bytes_ - zeros)) & highBits) == 0;
    }

    /// Removes the first decimal point that has a digit behind it, and returns how many characters are behind
    /// it; 0 if there is none.
    int removePoint() {
        const std::uint64_t points = bytes_ ^ (ones * '.');
        const std::uint64_t found = (points - ones) & ~points & highBits;
        const int before = std::countr_zero(found) - 7;
        constexpr int lastByte = 56;
        if (found == 0 || before == lastByte) {
            return 0;
        }
        const std::uint64_t integer = bytes_ & ((std::uint64_t{1} << before) - 1);
        const std::uint64_t fraction = bytes_ >> (before + 8) << (before + 8);
        bytes_ = fraction | (integer << 8) | '0';
        return (lastByte - before) / 8;
    }

    /// The value of digits.
    [[nodiscard]] std::uint64_t value() const {
        // Joins neighbours into pairs, pairs into fours, and these.
        std::uint64_t value = bytes_ - zeros;
        value = (value * 10 + (value >> 8)) & 0x00ff00ff00ff00ff;
        value = (value * 100 + (value >> 16)) & 0x0000ffff0000ffff;
        return (value * 10000 + (value >> 32)) & 0xffffffff;
    }

private:
    static constexpr std::uint64_t ones = 0x0101010101010101;
    static constexpr std::uint64_t zeros = ones * '0';
    static constexpr std::uint64_t highBits = ones << 7;

    std::uint64_t bytes_ = 0;
};

/// A number without sign and exponent, of at most sixteen characters, as nearly all are.
struct ShortNumber {
    /// Its digits without the point.
    std::uint64_t digits = 0;
    /// How many of them are behind the point.
    int fractionDigits = 0;

    /// Read the number from `text` to `end`. False for any other text, also for longer ones; `scanNumber`
    /// then reads it. `readBlock` reads one of up to eight characters, and eight bytes must be readable;
    /// `readBlocks` a longer one.
    [[nodiscard]] bool readBlock(const char* text, const char* end) {
        if (end - text > DigitBlock::size || !mayBegin(text, end)) {
            return false;
        }
        DigitBlock block(text, end);
        fractionDigits = block.removePoint();
        digits = block.value();
        return block.isDigits();
    }
    [[nodiscard]] bool readBlocks(const char* text, const char* end) {
        const auto length = end - text;
        if (length <= DigitBlock::size || length > 2 * DigitBlock::size || !mayBegin(text, end)) {
            return false;
        }
        DigitBlock last(end - DigitBlock::size, end);
        const DigitBlock first(text, end - DigitBlock::size);
        fractionDigits = last.removePoint();
        digits = first.value() * (fractionDigits > 0 ? 10'000'000 : 100'000'000) + last.value();
        return first.isDigits() && last.isDigits();
    }

private:
    static bool mayBegin(const char* text, const char* end) {
        const bool leadingZero = *text == '0' && end - text > 1 && text[1] != '.';
        return !leadingZero && *text != '.';
    }
};

} // namespace quillet::platform::json
