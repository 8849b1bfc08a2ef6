#include "Models/RecordFields.hpp"

#include <algorithm>

namespace quillet {

namespace {

/// Whether `text` has the shape of `pattern`, in which 0 stands for any digit, ~ for a sign, and every other
/// character for itself.
bool hasShape(std::string_view text, std::string_view pattern) {
    return std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(), [](char c, char shape) {
        switch (shape) {
        case '0':
            return c >= '0' && c <= '9';
        case '~':
            return c == '+' || c == '-';
        }
        return c == shape;
    });
}

int number(std::string_view text, std::size_t position, std::size_t length) {
    int value = 0;
    for (const char digit : text.substr(position, length)) {
        value = value * 10 + (digit - '0');
    }
    return value;
}

} // namespace

std::optional<Date> iso8601Full(std::string_view text) {
    using namespace std::chrono;
    if (!hasShape(text, "0000-00-00T00:00:00.000~0000")) {
        return std::nullopt;
    }
    const year_month_day day(year(number(text, 0, 4)), month(static_cast<unsigned>(number(text, 5, 2))),
                             std::chrono::day(static_cast<unsigned>(number(text, 8, 2))));
    const hours hour(number(text, 11, 2));
    const minutes minute(number(text, 14, 2));
    const seconds second(number(text, 17, 2));
    const hours offsetHours(number(text, 24, 2));
    const minutes offsetMinutes(number(text, 26, 2));
    const auto offset = offsetHours + offsetMinutes;
    // No zone on Earth is further than this from UTC, daylight saving included.
    const hours furthest(18);
    if (!day.ok() || hour > hours(23) || minute > minutes(59) || second > seconds(59) ||
        offsetMinutes > minutes(59) || offset > furthest) {
        return std::nullopt;
    }
    const Date local = sys_days(day) + hour + minute + second + milliseconds(number(text, 20, 3));
    return text[23] == '-' ? local + offset : local - offset;
}

} // namespace quillet
