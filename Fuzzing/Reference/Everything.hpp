#pragma once

#include "Models/RecordFields.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillet::fuzzing {

struct Inner {
    std::uint64_t count = 0;
    std::optional<std::string> text;
    bool operator==(const Inner&) const = default;
};

/// One field of each type that there is. A body may have any of them; the rest is passed over.
struct Everything {
    std::optional<std::string> text;
    std::optional<std::uint64_t> count;
    std::optional<std::int64_t> number;
    std::optional<platform::Decimal> amount;
    std::optional<bool> flag;
    std::optional<Date> date;
    std::optional<ProductErrorStatus> status;
    std::optional<Inner> inner;
    std::optional<std::vector<Inner>> list;
    std::optional<std::vector<std::uint64_t>> counts;
    bool operator==(const Everything&) const = default;
};

} // namespace quillet::fuzzing

template <>
inline constexpr auto quillet::platform::jsonFields<quillet::fuzzing::Inner> =
    std::tuple{json::Field{"count", &fuzzing::Inner::count}, json::Field{"text", &fuzzing::Inner::text}};
template <>
inline constexpr auto quillet::platform::jsonFields<quillet::fuzzing::Everything> = std::tuple{
    json::Field{"text", &fuzzing::Everything::text},     json::Field{"count", &fuzzing::Everything::count},
    json::Field{"number", &fuzzing::Everything::number}, json::Field{"amount", &fuzzing::Everything::amount},
    json::Field{"flag", &fuzzing::Everything::flag},     json::Field{"date", &fuzzing::Everything::date},
    json::Field{"status", &fuzzing::Everything::status}, json::Field{"inner", &fuzzing::Everything::inner},
    json::Field{"list", &fuzzing::Everything::list},     json::Field{"counts", &fuzzing::Everything::counts}};
