#pragma once

#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace quillet::platform {

/// A value that is to be written as JSON: a text, a whole number, or an object whose members keep their
/// order. Copies share what they hold.
class JSONValue {
public:
    using Object = std::vector<std::pair<std::string, JSONValue>>;
    using Value = std::variant<std::string, std::uint64_t, std::int64_t, Object>;

    JSONValue(std::string text) : JSONValue(Value(std::move(text))) {}
    JSONValue(const char* text) : JSONValue(std::string(text)) {}
    JSONValue(std::unsigned_integral auto number) : JSONValue(Value(std::uint64_t{number})) {}
    JSONValue(std::signed_integral auto number) : JSONValue(Value(std::int64_t{number})) {}
    JSONValue(Object members) : JSONValue(Value(std::move(members))) {}
    JSONValue(bool) = delete;

    [[nodiscard]] const Value& value() const { return *value_; }

private:
    explicit JSONValue(Value value) : value_(std::make_shared<const Value>(std::move(value))) {}

    // Shared, because initializer lists copy their elements, and libstdc++ 12 has undefined behaviour if
    // copying such a variant throws.
    std::shared_ptr<const Value> value_;
};

} // namespace quillet::platform
