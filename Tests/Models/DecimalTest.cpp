#include "Fuzzing/Reference/Tree.hpp"
#include "Models/Decoding.hpp"
#include "Support/Thorough.hpp"

#include <boost/multiprecision/cpp_dec_float.hpp>
#include <gmock/gmock.h>

#include <random>

namespace quillet::tests {

// More digits than any text here has, so that the reference itself never rounds.
using Oracle = boost::multiprecision::number<boost::multiprecision::cpp_dec_float<200>>;

/// A number of at most 38 significant digits in a random notation.
std::string randomNumber(std::mt19937& random) {
    const auto pick = [&](unsigned below) { return random() % below; };
    const auto digits = [&](std::size_t count) {
        std::string text;
        while (text.size() < count) {
            text += static_cast<char>('0' + pick(10) * (pick(4) != 0));
        }
        return text;
    };
    std::string text = pick(3) == 0 ? "-" : "";
    text += pick(4) == 0 ? "0" : static_cast<char>('1' + pick(9)) + digits(pick(4) == 0 ? pick(19) : pick(5));
    if (pick(4) != 0) {
        text += '.' + digits(1 + (pick(4) == 0 ? pick(18) : pick(4)));
    }
    if (pick(3) == 0) {
        text += pick(2) == 0 ? "e" : "E";
        text += std::array{"", "+", "-"}[pick(3)] + digits(1 + pick(2));
    }
    return text;
}

TEST(DecimalTest, EqualsAnotherLibrarysDecimalsForEveryWayToWriteThem) {
    std::mt19937 random;
    platform::Decimal earlier;
    const std::size_t cases = testing::thorough(10'000, 1'000'000);
    for (std::size_t i = 0; i < cases; ++i) {
        const std::string text = randomNumber(random);
        const auto decimal = platform::Decimal::parse(text);
        ASSERT_TRUE(decimal) << text;
        ASSERT_EQ(Oracle(decimal->toString()), Oracle(text)) << text;
        ASSERT_EQ(*decimal == earlier, Oracle(text) == Oracle(earlier.toString())) << text;
        earlier = *decimal;
    }
    RecordProperty("cases", static_cast<int>(cases));
}

// In a body most numbers take a faster path than `parse`, by their length and by what stands behind them.
TEST(DecimalTest, ReadsTheNumbersOfABodyAsTheyStandOnPaper) {
    std::mt19937_64 random;
    std::mt19937 more;
    const std::size_t cases = testing::thorough(5'000, 500'000);
    for (std::size_t i = 0; i < cases; ++i) {
        const std::string whole = std::to_string(random() >> (random() % 64)) +
                                  std::array{"", ".0", ".00000", "e0", " "}[random() % 5];
        const std::string body = R"({"counts":[)" + whole + ',' + whole + R"(],"amount":)" +
                                 randomNumber(more) + R"(,"number":)" +
                                 (random() % 2 == 0 ? whole : randomNumber(more)) + "}";
        ASSERT_STREQ(fuzzing::disagreement(body, decodeInWindows<Some>(body)), nullptr) << body;
    }
    RecordProperty("cases", static_cast<int>(cases));
}

TEST(DecimalTest, ComparesByValueAndPrintsPlainly) {
    const struct {
        std::string text;
        platform::Decimal value;
        std::string plain;
    } cases[] = {{"1.50", platform::Decimal(15, -1), "1.5"},
                 {"150e-2", platform::Decimal(15, -1), "1.5"},
                 {"-0.00", platform::Decimal(), "0"},
                 {"0e999999999999999999999", platform::Decimal(), "0"},
                 {"-0.05", platform::Decimal(-5, -2), "-0.05"},
                 {"3e2", platform::Decimal(300), "300"},
                 {"-9223372036854775808", platform::Decimal(std::numeric_limits<std::int64_t>::min()),
                  "-9223372036854775808"},
                 {"1" + std::string(5000, '0') + "e-5000", platform::Decimal(1), "1"},
                 {"0." + std::string(5000, '0') + "7e5001", platform::Decimal(7), "7"}};
    for (const auto& [text, value, plain] : cases) {
        EXPECT_EQ(platform::Decimal::parse(text), value) << text;
        EXPECT_EQ(value.toString(), plain) << text;
    }
}

TEST(DecimalTest, KeepsThirtyEightDigitsAndRoundsTheRestHalfToEven) {
    const std::string nines(38, '9');
    const std::string digits = "1234567890123456789012345678901234567";
    const std::pair<std::string, std::string> cases[] = {{nines, nines},
                                                         {nines + "4", nines + "0"},
                                                         {nines + "5", "1" + std::string(39, '0')},
                                                         {digits + "25", digits + "20"},
                                                         {digits + "35", digits + "40"},
                                                         {digits + "2.5000001", digits + "3"},
                                                         {"0.0" + digits + "85", "0.0" + digits + "8"}};
    for (const auto& [text, rounded] : cases) {
        EXPECT_EQ(platform::Decimal::parse(text)->toString(), rounded) << text;
    }
}

TEST(DecimalTest, RefusesWhatItCannotHold) {
    for (const char* text : {"", "-", "1.", ".1", "01", "1 ", "1e", "1e10000", "1e-10000",
                             "1e99999999999999999999", "1e-99999999999999999999", "inf", "1,5", "+1"}) {
        EXPECT_EQ(platform::Decimal::parse(text), std::nullopt) << text;
    }
}

} // namespace quillet::tests
