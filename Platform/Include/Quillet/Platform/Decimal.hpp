#pragma once

#include "Quillet/Export.hpp"

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillet::platform {

namespace json {
struct NumberToken;
}

/// An exact decimal number for money amounts: a sign, up to 38 significant digits and a power of ten. Kept
/// without trailing zeros, so that equal values have equal members: 1.5 and 1.50 are the same Decimal. Never
/// goes through binary floating point.
class QUILLET_BACKEND_API Decimal {
public:
    /// The most significant digits that a Decimal holds.
    static constexpr int maximumDigits = 38;
    /// The largest power of ten, up or down, that the last significant digit may stand at.
    static constexpr std::int32_t maximumExponent = 9999;

    /// Zero.
    constexpr Decimal() = default;

    /// `coefficient` times ten to the power of `exponent`, which must be within `maximumExponent`:
    /// Decimal(1010, -2) is 10.10.
    explicit constexpr Decimal(std::int64_t coefficient, std::int32_t exponent = 0);

    /// Reads a number written as JSON writes it (-12.30, 5e3). Digits beyond the 38th significant one are
    /// rounded half to even. Nothing for any other text and for a number whose power of ten is out of range.
    [[nodiscard]] static std::optional<Decimal> parse(std::string_view text);

    /// The number in plain notation without trailing zeros ("10.1", "-0.05", "300"). Nothing is rounded.
    [[nodiscard]] std::string toString() const;

    /// The value of a scanned number, rounded likewise; sets `exact` to whether no digit was lost.
    [[nodiscard]] static std::optional<Decimal> fromToken(const json::NumberToken& number, bool& exact);

    /// The absolute value if it is whole and fits.
    [[nodiscard]] std::optional<std::uint64_t> wholeMagnitude() const;

    /// By numeric value.
    bool operator==(const Decimal&) const = default;

private:
    // The coefficient in two halves: one 128-bit member would align the record to 16 bytes and make it a
    // third larger.
    std::uint64_t low_ = 0;
    std::uint64_t high_ = 0;
    std::int32_t exponent_ = 0;
    bool negative_ = false;
};

constexpr Decimal::Decimal(std::int64_t coefficient, std::int32_t exponent)
    : low_(coefficient < 0 ? 0 - static_cast<std::uint64_t>(coefficient)
                           : static_cast<std::uint64_t>(coefficient)),
      exponent_(exponent),
      negative_(coefficient < 0) {
    if (low_ == 0) {
        exponent_ = 0;
    }
    while (low_ != 0 && low_ % 10 == 0) {
        low_ /= 10;
        ++exponent_;
    }
}

} // namespace quillet::platform
