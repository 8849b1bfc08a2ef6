#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace quillet::fuzzing {

/// The instant that a date of a body stands for, computed from the rules of the calendar without <chrono>'s.
inline std::optional<std::chrono::sys_time<std::chrono::milliseconds>>
referenceDate(const std::string& text) {
    std::string form = text;
    for (char& c : form) {
        c = c >= '0' && c <= '9' ? '9' : c;
    }
    if (form != "9999-99-99T99:99:99.999+9999" && form != "9999-99-99T99:99:99.999-9999") {
        return std::nullopt;
    }
    const auto number = [&](std::size_t at, std::size_t length) {
        return std::stoi(text.substr(at, length));
    };
    const int year = number(0, 4);
    const int month = number(5, 2);
    const int day = number(8, 2);
    const int zone = number(24, 2) * 60 + number(26, 2);
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    const int lengths[] = {31, leap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12 || day < 1 || day > lengths[month - 1] || number(11, 2) > 23 ||
        number(14, 2) > 59 || number(17, 2) > 59 || number(26, 2) > 59 || zone > 18 * 60) {
        return std::nullopt;
    }
    // From the first day of the year 0, which is a leap year.
    constexpr std::int64_t daysTo1970 = 719'528;
    std::int64_t days =
        year * 365 + (year + 3) / 4 - (year + 99) / 100 + (year + 399) / 400 + day - 1 - daysTo1970;
    for (int earlier = 1; earlier < month; ++earlier) {
        days += lengths[earlier - 1];
    }
    const std::int64_t minutes =
        (days * 24 + number(11, 2)) * 60 + number(14, 2) - (text[23] == '+' ? zone : -zone);
    const std::int64_t milliseconds = (minutes * 60 + number(17, 2)) * 1000 + number(20, 3);
    return std::chrono::sys_time<std::chrono::milliseconds>(std::chrono::milliseconds(milliseconds));
}

} // namespace quillet::fuzzing
