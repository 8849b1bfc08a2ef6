#pragma once

#include <string>

namespace quillet::platform {

/// A value that cannot be written as asked: text that is not UTF-8 into JSON, or text with a line break into
/// a header.
struct EncodingError {
    /// Which value, never what it held: the way to it in the JSON ("consultant.id"), or the header's name.
    std::string codingPath;

    bool operator==(const EncodingError&) const = default;
};

[[nodiscard]] inline std::string description(const EncodingError& error) {
    return "Cannot be encoded: " + error.codingPath;
}

} // namespace quillet::platform
