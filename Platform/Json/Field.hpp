#pragma once

#include <string_view>
#include <tuple>

namespace quillet::platform {

namespace json {

/// One row of a record's table: the JSON key and the member that it fills. The member's type says what is
/// read; a std::optional may be missing or null, everything else is required.
template <typename Record, typename Value>
struct Field {
    std::string_view key;
    Value Record::*member;
};

// Clang before 17 does not deduce an aggregate's arguments by itself.
template <typename Record, typename Value>
Field(std::string_view, Value Record::*) -> Field<Record, Value>;

} // namespace json

/// A record's field table: a std::tuple of json::Field in the order in which the fields are read. Specialise
/// it beside a record to make the record decodable.
template <typename Record>
inline constexpr auto jsonFields = std::tuple{};

} // namespace quillet::platform
