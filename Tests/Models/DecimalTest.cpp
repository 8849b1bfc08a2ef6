#include "Models/Decoding.hpp"
#include "Support/Thorough.hpp"

#include <boost/multiprecision/cpp_dec_float.hpp>
#include <gmock/gmock.h>

#include <random>

namespace quillet::tests {

// More digits than any text here has, so that the reference itself never rounds.
using Oracle = boost::multiprecision::number<boost::multiprecision::cpp_dec_float<200>>;

/// A number in a random notation, some with more digits than are kept.
std::string randomNumber(std::mt19937_64& random) {
    const auto pick = [&](unsigned below) { return random() % below; };
    const auto digits = [&](std::size_t count) {
        std::string text(count, '0');
        std::ranges::generate(text, [&] { return static_cast<char>('0' + pick(10) * (pick(4) != 0)); });
        return text;
    };
    std::string text = pick(3) == 0 ? "-" : "";
    text += pick(4) == 0 ? "0" : static_cast<char>('1' + pick(9)) + digits(pick(4) == 0 ? pick(40) : pick(5));
    if (pick(4) != 0) {
        text += '.' + digits(1 + (pick(4) == 0 ? pick(20) : pick(4)));
    }
    if (pick(3) == 0) {
        text += std::array{"e", "E", "e+", "E-", "e-"}[pick(5)] + digits(1 + pick(2));
    }
    return text;
}

// In a body most numbers take a faster path than `parse`, by their length and by what stands behind them.
TEST(DecimalTest, NumbersOfABodyAreThoseOfAnotherLibraryAndThoseOnPaper) {
    std::mt19937_64 random;
    const std::size_t cases = testing::thorough(10'000, 1'000'000);
    for (std::size_t i = 0; i < cases; ++i) {
        const std::string text = randomNumber(random);
        const std::string whole = std::to_string(random() >> (random() % 64)) +
                                  std::array{"", ".0", ".00000", "e0", " "}[random() % 5];
        const std::string body = R"({"counts":[)" + whole + ',' + whole + R"(],"amount":)" + text +
                                 R"(,"number":)" + (i % 2 == 0 ? whole : text) + "}";
        const auto record = decoded<Everything>(body);
        const auto parsed = platform::Decimal::parse(text);
        const auto rounded =
            fuzzing::rounded(fuzzing::paperNumber(text).value(), platform::Decimal::maximumDigits);
        ASSERT_EQ(Oracle(parsed.value().toString()), Oracle(rounded.text())) << text;
        ASSERT_TRUE(!HasFailure() && (!record || record->amount == parsed)) << body;
    }
    RecordProperty("cases", static_cast<int>(cases));
}

TEST(DecimalTest, ComparesByValueRoundsHalfToEvenAndPrintsPlainly) {
    const std::string nines(38, '9');
    const std::pair<std::string, std::string> cases[] = {{"150e-2", "1.5"},
                                                         {"-0.00", "0"},
                                                         {"-0.05", "-0.05"},
                                                         {"3e2", "300"},
                                                         {nines + "5", "1" + std::string(39, '0')}};
    for (const auto& [text, plain] : cases) {
        const auto decimal = platform::Decimal::parse(text).value();
        EXPECT_EQ(decimal.toString(), plain) << text;
        EXPECT_EQ(decimal, platform::Decimal::parse(plain)) << text;
    }
    for (const char* text : {"", "-", "1.", ".1", "01", "1 ", "1e", "1e10000", "1e-10000",
                             "1e99999999999999999999", "1e-99999999999999999999", "inf", "1,5", "+1"}) {
        EXPECT_EQ(platform::Decimal::parse(text), std::nullopt) << text;
    }
    constexpr auto least = std::numeric_limits<std::int64_t>::min();
    EXPECT_EQ(platform::Decimal(least), platform::Decimal::parse("-9223372036854775808"));
    EXPECT_EQ(platform::Decimal(-1500, -3), platform::Decimal::parse("-1.5"));
}

} // namespace quillet::tests
