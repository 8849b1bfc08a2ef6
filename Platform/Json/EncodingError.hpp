#pragma once

#include <string>

namespace quillet::platform {

/// A value that cannot be encoded: text that is not UTF-8 in JSON, or text with a line break in a header.
struct EncodingError {
    /// Path of the value in the JSON ("consultant.id") or the header's name; never the value itself.
    std::string codingPath;

    bool operator==(const EncodingError&) const = default;
};

[[nodiscard]] inline std::string description(const EncodingError& error) {
    return "Cannot be encoded: " + error.codingPath;
}

} // namespace quillet::platform
