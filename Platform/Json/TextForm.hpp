#pragma once

namespace quillet::platform::json {

/// Specialised beside a type that travels as a JSON string of a certain form:
///     static constexpr std::string_view expected;          // what a decoding error says was expected
///     static std::optional<T> read(std::string_view text); // nothing if the text is not of the form
template <typename T>
struct TextForm;

} // namespace quillet::platform::json
