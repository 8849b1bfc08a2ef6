#include "Quillet/Platform/Decimal.hpp"
#include "Fuzzing/Reference/Number.hpp"
#include "Fuzzing/Target.hpp"

namespace quillet::fuzzing {

static const Target target("decimal", [](const std::string& text) {
    using platform::Decimal;
    const auto number = paperNumber(text);
    const auto expected = number ? rounded(*number, Decimal::maximumDigits) : PaperNumber();
    const bool fits = number && std::abs(expected.exponent) <= Decimal::maximumExponent;
    const auto decimal = Decimal::parse(text);
    require(decimal.has_value() == fits, "numbers are read, and nothing else is");
    if (decimal) {
        const std::string plain = decimal->toString();
        require(paperNumber(plain) == expected, "the value is the one on paper");
        require(Decimal::parse(plain) == decimal, "what was printed reads as the same value");
    }
});

} // namespace quillet::fuzzing
