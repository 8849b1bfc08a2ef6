#include "Models/RecordFields.hpp"

#include <gmock/gmock.h>

namespace quillet::tests {

using namespace std::chrono;

TEST(DateTest, GivesTheInstantThatTheOffsetSays) {
    const std::pair<const char*, Date> cases[] = {
        {"2024-03-01T00:00:00.000-0300", sys_days(2024y / 3 / 1) + 3h},
        {"2024-03-01T00:00:00.007+0530", sys_days(2024y / 2 / 29) + 18h + 30min + 7ms},
        {"2024-02-29T23:59:59.999+0000", sys_days(2024y / 3 / 1) - 1ms},
        {"2000-02-29T00:00:00.000-0000", sys_days(2000y / 2 / 29)},
        {"1969-12-31T23:59:59.999+0000", sys_days(1970y / 1 / 1) - 1ms},
        {"2024-01-01T00:00:00.000+1800", sys_days(2023y / 12 / 31) + 6h},
        {"9999-12-31T23:59:59.999-0100", sys_days(10000y / 1 / 1) + 1h - 1ms}};
    for (const auto& [text, date] : cases) {
        EXPECT_EQ(iso8601Full(text), date) << text;
    }
}

TEST(DateTest, RefusesEveryOtherForm) {
    for (const char* text :
         {"", "2024-03-01T00:00:00.000Z", "2024-03-01T00:00:00.0000-0300", "2024-03-01T00:00:00.000-03:00",
          "2024-03-01T00:00:00.000-0300 ", "2024-03-01t00:00:00.000-0300", "+2024-03-01T00:00:00.000-030",
          "2024-02-30T00:00:00.000-0300", "1900-02-29T00:00:00.000-0300", "2024-00-01T00:00:00.000-0300",
          "2024-03-00T00:00:00.000-0300", "2024-03-01T24:00:00.000-0300", "2024-03-01T00:60:00.000-0300",
          "2024-03-01T00:00:60.000-0300", "2024-03-01T00:00:00.000-0360", "2024-03-01T00:00:00.000+1801",
          "2024-03-01T00:00:00.000-0٣00"}) {
        EXPECT_EQ(iso8601Full(text), std::nullopt) << text;
    }
}

} // namespace quillet::tests
