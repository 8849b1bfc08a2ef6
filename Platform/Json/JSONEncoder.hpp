#pragma once

#include "Platform/Json/Field.hpp"
#include "Platform/Json/JSONValue.hpp"
#include "Quillet/Platform/CodingErrors.hpp"

#include <expected>
#include <string>
#include <tuple>

namespace quillet::platform {

/// Writes compact JSON: members in their order, slashes escaped with a backslash, numbers with all their
/// digits, everything beyond ASCII as UTF-8. Fails with an EncodingError for text that is not UTF-8. Pure;
/// any thread.
[[nodiscard]] std::expected<std::string, EncodingError> encodeJSON(const JSONValue& value);

/// Converts a record to a JSON value by its field table.
template <typename Record>
requires(std::tuple_size_v<std::remove_cvref_t<decltype(jsonFields<Record>)>> > 0) [[nodiscard]] JSONValue
    jsonValue(const Record& record) {
    const auto member = [](const auto& value) -> JSONValue {
        if constexpr (std::constructible_from<JSONValue, decltype(value)>) {
            return JSONValue(value);
        } else {
            return jsonValue(value);
        }
    };
    return std::apply(
        [&](const auto&... field) {
            return JSONValue(JSONValue::Object{{std::string(field.key), member(record.*field.member)}...});
        },
        jsonFields<Record>);
}

} // namespace quillet::platform
