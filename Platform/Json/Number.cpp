#include "Platform/Json/Number.hpp"

#include <limits>

namespace quillet::platform::json {

namespace {

std::optional<std::uint64_t> toMagnitude(const NumberToken& number) {
    bool exact = false;
    const auto decimal = Decimal::fromToken(number, exact);
    return decimal && exact ? decimal->wholeMagnitude() : std::nullopt;
}

} // namespace

std::optional<std::uint64_t> toUnsigned(const NumberToken& number) {
    const auto magnitude = toMagnitude(number);
    return magnitude && number.negative && *magnitude != 0 ? std::nullopt : magnitude;
}

std::optional<std::int64_t> toSigned(const NumberToken& number) {
    constexpr auto highest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    const auto magnitude = toMagnitude(number);
    if (!magnitude || *magnitude > highest + (number.negative ? 1 : 0)) {
        return std::nullopt;
    }
    return static_cast<std::int64_t>(number.negative ? 0 - *magnitude : *magnitude);
}

std::optional<Decimal> toDecimal(const NumberToken& number) {
    bool exact = false;
    return Decimal::fromToken(number, exact);
}

} // namespace quillet::platform::json
