#pragma once

#include <chrono>
#include <cstddef>
#include <ctime>
#include <optional>
#include <string>

namespace quillet::fuzzing {

/// The instant that a date of a body stands for, by the C library's calendar and not by <chrono>'s.
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
    std::tm fields{};
    fields.tm_year = number(0, 4) - 1900;
    fields.tm_mon = number(5, 2) - 1;
    fields.tm_mday = number(8, 2);
    fields.tm_hour = number(11, 2);
    fields.tm_min = number(14, 2);
    fields.tm_sec = number(17, 2);
    std::tm same = fields;
    const std::time_t local = timegm(&same);
    // What no calendar and no clock has comes back as another day or time.
    const auto time = [](const std::tm& tm) { return (tm.tm_hour * 100 + tm.tm_min) * 100 + tm.tm_sec; };
    const bool real = same.tm_year == fields.tm_year && same.tm_mon == fields.tm_mon &&
                      same.tm_mday == fields.tm_mday && time(same) == time(fields);
    const int minutes = number(24, 2) * 60 + number(26, 2);
    if (!real || number(26, 2) > 59 || minutes > 18 * 60) {
        return std::nullopt;
    }
    const std::chrono::seconds seconds(local - (text[23] == '+' ? 60LL : -60LL) * minutes);
    return std::chrono::sys_time<std::chrono::milliseconds>(seconds +
                                                            std::chrono::milliseconds(number(20, 3)));
}

} // namespace quillet::fuzzing
