#include "Fuzzing/Reference/Date.hpp"
#include "Models/RecordFields.hpp"
#include "Support/Thorough.hpp"

#include <gmock/gmock.h>

#include <cstdio>
#include <random>

namespace quillet::tests {

TEST(DateTest, AgreesWithTheRulesOfTheCalendar) {
    std::mt19937 random;
    const auto upTo = [&](unsigned most) { return static_cast<unsigned>(random() % (most + 1)); };
    const std::size_t cases = testing::thorough(20'000, 1'000'000);
    std::size_t dates = 0;
    for (std::size_t i = 0; i < cases; ++i) {
        // A little more than there is of each, and ends of February and of the year more often.
        const unsigned month = upTo(3) == 0 ? 2 : upTo(13);
        const unsigned day = upTo(2) == 0 ? 28 + upTo(3) : upTo(32);
        char form[64];
        std::snprintf(form, sizeof form, "%04u-%02u-%02uT%02u:%02u:%02u.%03u%c%02u%02u", upTo(9999), month,
                      day, upTo(24), upTo(60), upTo(60), upTo(999), "+-"[upTo(1)], upTo(19), upTo(60));
        std::string text = form;
        // Some have another length, or a character that does not belong there.
        if (upTo(9) == 0) {
            text.resize(upTo(29), ' ');
        } else if (upTo(4) == 0) {
            text[upTo(27)] = "0/:-+.tTZ "[upTo(9)];
        }
        const auto date = iso8601Full(text);
        ASSERT_EQ(date, fuzzing::referenceDate(text)) << text;
        dates += date.has_value() ? 1 : 0;
    }
    EXPECT_GT(dates, cases / 3);
    RecordProperty("cases", static_cast<int>(cases));
}

} // namespace quillet::tests
