#pragma once

#include "Platform/Json/TextForm.hpp"
#include "Quillet/Platform/Decimal.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::platform::json {

template <typename T>
inline constexpr bool isOptional = false;
template <typename T>
inline constexpr bool isOptional<std::optional<T>> = true;

template <typename T>
inline constexpr bool isList = false;
template <typename T>
inline constexpr bool isList<std::vector<T>> = true;

template <typename T>
concept HasTextForm = requires {
    TextForm<T>::expected;
};

/// The name of `T` in decoding errors.
template <typename T>
constexpr std::string_view expectedOf() {
    if constexpr (HasTextForm<T>) {
        return TextForm<T>::expected;
    } else if constexpr (isList<T>) {
        return "array";
    } else {
        return "object";
    }
}
template <>
constexpr std::string_view expectedOf<std::uint64_t>() {
    return "unsigned integer";
}
template <>
constexpr std::string_view expectedOf<std::int64_t>() {
    return "integer";
}
template <>
constexpr std::string_view expectedOf<Decimal>() {
    return "decimal number";
}
template <>
constexpr std::string_view expectedOf<bool>() {
    return "boolean";
}
template <>
constexpr std::string_view expectedOf<std::string>() {
    return "text";
}

} // namespace quillet::platform::json
