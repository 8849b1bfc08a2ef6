#pragma once

#include "Platform/Json/TextForm.hpp"

#include <chrono>
#include <optional>
#include <string_view>

namespace quillet {

/// A point in time, UTC, exact to the millisecond that the wire carries. Leap seconds are not counted.
using Date = std::chrono::sys_time<std::chrono::milliseconds>;

/// Reads the one date form of all response bodies, yyyy-MM-dd'T'HH:mm:ss.SSSZ, where Z is a sign and four
/// digits (2024-03-01T00:00:00.000-0300 is 03:00 UTC). Gives nothing for any other form, for a day, hour,
/// minute or second that the calendar does not have, and for an offset of more than 18 hours or with more
/// than 59 minutes. Stateless; may be called on any thread.
[[nodiscard]] std::optional<Date> iso8601Full(std::string_view text);

template <>
struct platform::json::TextForm<Date> {
    static constexpr std::string_view expected = "date of the form yyyy-MM-dd'T'HH:mm:ss.SSSZ";
    static std::optional<Date> read(std::string_view text) { return iso8601Full(text); }
};

} // namespace quillet
