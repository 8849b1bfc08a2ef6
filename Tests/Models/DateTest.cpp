#include "Fuzzing/Reference/Date.hpp"
#include "Models/RecordFields.hpp"
#include "Support/Thorough.hpp"

#include <gmock/gmock.h>

#include <cstdio>
#include <random>

namespace quillet::tests {

using namespace std::chrono;

TEST(DateTest, GivesTheInstantThatTheOffsetSays) {
    const std::pair<const char*, Date> cases[] = {
        {"2024-03-01T00:00:00.000-0300", sys_days(2024y / 3 / 1) + 3h},
        {"2024-03-01T00:00:00.007+0530", sys_days(2024y / 2 / 29) + 18h + 30min + 7ms},
        {"2024-02-29T23:59:59.999+0000", sys_days(2024y / 3 / 1) - 1ms},
        {"2024-01-01T00:00:00.000+1800", sys_days(2023y / 12 / 31) + 6h},
        {"9999-12-31T23:59:59.999-0100", sys_days(10000y / 1 / 1) + 1h - 1ms}};
    for (const auto& [text, date] : cases) {
        EXPECT_EQ(iso8601Full(text), date) << text;
    }
}

TEST(DateTest, RefusesEveryOtherForm) {
    for (const char* text :
         {"", "2024-03-01T00:00:00.000Z", "2024-03-01T00:00:00.000-0300 ", "2024-03-01T00:00:00.000-0/00",
          "2024-03-01T00:00:00.000-0:00", "2024-03-01t00:00:00.000-0300", "2024-03-01T00:00:00.000 0300"}) {
        EXPECT_EQ(iso8601Full(text), std::nullopt) << text;
    }
}

TEST(DateTest, AgreesWithTheRulesOfTheCalendar) {
    std::mt19937 random;
    const auto upTo = [&](unsigned most) { return static_cast<unsigned>(random() % (most + 1)); };
    const std::size_t cases = testing::thorough(20'000, 1'000'000);
    std::size_t dates = 0;
    for (std::size_t i = 0; i < cases; ++i) {
        // A little more than there is of each, and ends of February and of the year more often.
        const unsigned month = upTo(3) == 0 ? 2 : upTo(13);
        const unsigned day = upTo(2) == 0 ? 28 + upTo(3) : upTo(32);
        char text[64];
        std::snprintf(text, sizeof text, "%04u-%02u-%02uT%02u:%02u:%02u.%03u%c%02u%02u", upTo(9999), month,
                      day, upTo(24), upTo(60), upTo(60), upTo(999), "+-"[upTo(1)], upTo(19), upTo(60));
        const auto date = iso8601Full(text);
        ASSERT_EQ(date, fuzzing::referenceDate(text)) << text;
        dates += date.has_value() ? 1 : 0;
    }
    EXPECT_GT(dates, cases / 2);
    RecordProperty("cases", static_cast<int>(cases));
}

} // namespace quillet::tests
