#pragma once

#include <string_view>
#include <tuple>

namespace quillet {

namespace json {

/// One row of a record's table: the JSON key and the member that it fills. The member's type says what is
/// read; a std::optional may be missing or null, everything else is required.
template <typename Record, typename Value>
struct Field {
    std::string_view key;
    Value Record::*member;
};

} // namespace json

/// A record's table: a std::tuple of json::Field in the order in which the fields are read. Specialising it
/// beside a record makes the record decodable.
template <typename Record>
inline constexpr auto jsonFields = std::tuple{};

} // namespace quillet
