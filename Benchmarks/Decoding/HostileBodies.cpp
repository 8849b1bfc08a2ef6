#include "Decoding/HostileBodies.hpp"

#include <string_view>

namespace quillet::benchmarks {

namespace {

std::string repeated(std::string_view text, std::size_t bytes) {
    std::string all;
    all.reserve(bytes + text.size());
    while (all.size() < bytes) {
        all += text;
    }
    return all;
}

/// A member with that value before those that a body of open carts needs.
std::string before(const std::string& value) {
    return R"({"other":)" + value + R"(,"consultant":{"id":1},"carts":[]})";
}

std::string unknownKeys(std::size_t count) {
    std::string text = "{";
    for (std::size_t i = 0; i < count; ++i) {
        text += "\"key" + std::to_string(i) + "\":" + std::to_string(i) + ',';
    }
    return text + R"("consultant":{"id":1},"carts":[]})";
}

} // namespace

std::vector<HostileBody> hostileBodies(std::size_t bytes) {
    const auto listOf = [&](std::string_view elements, std::string_view last) {
        return R"({"consultant":{"id":1},"carts":[)" + repeated(elements, bytes) + std::string(last) + "]}";
    };
    const std::size_t million = bytes / 60;
    return {
        {"arrays in arrays", repeated("[", bytes)},
        {"objects in objects", before(repeated(R"({"a":)", bytes))},
        {"arrays side by side", before("[" + repeated("[],", bytes) + "[]]")},
        {"a million unknown keys", unknownKeys(million)},
        {"one string", before('"' + repeated("a", bytes) + '"')},
        {"one string of escapes", before('"' + repeated("\\u00e9", bytes) + '"')},
        {"one string of commas and quotes", before('"' + repeated(R"(,\")", bytes) + '"')},
        {"many strings of one comma", before("[" + repeated(R"(",",)", bytes) + "\",\"]")},
        {"a number of a million digits", R"({"consultant":{"id":)" + repeated("7", million) + "}}"},
        {"numbers where carts belong", listOf("0,", "0")},
        {"empty objects where carts belong", listOf("{},", "{}")},
        {"white space", before(repeated(" \n", bytes) + "0")},
    };
}

} // namespace quillet::benchmarks
