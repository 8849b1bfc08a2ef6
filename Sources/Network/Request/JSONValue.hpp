#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace quillet {

/// A value that is to be written as JSON: a text, a whole number, or an object whose members keep their
/// order.
class JSONValue {
public:
    using Object = std::vector<std::pair<std::string, JSONValue>>;

    JSONValue(std::string text) : value_(std::move(text)) {}
    JSONValue(const char* text) : value_(std::string(text)) {}
    JSONValue(std::unsigned_integral auto number) : value_(std::uint64_t{number}) {}
    JSONValue(std::signed_integral auto number) : value_(std::int64_t{number}) {}
    JSONValue(Object members) : value_(std::move(members)) {}
    JSONValue(bool) = delete;

    [[nodiscard]] const std::variant<std::string, std::uint64_t, std::int64_t, Object>& value() const {
        return value_;
    }

private:
    std::variant<std::string, std::uint64_t, std::int64_t, Object> value_;
};

} // namespace quillet
