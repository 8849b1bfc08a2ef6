#pragma once

#include "Quillet/Export.hpp"

#include <string>

namespace quillet::platform {

/// Why a body could not be decoded: where in the body, and what was expected there. It holds nothing of the
/// body's content, so it may be logged.
struct DecodingError {
    enum class Reason {
        /// The body is not one complete JSON value in UTF-8, or is nested too deep; `path` and `expected` are
        /// empty.
        invalidJson,
        /// A required key is not there.
        missingKey,
        /// The key is there with a value of another kind, out of range or null.
        unexpectedValue,
    };

    Reason reason = Reason::invalidJson;
    /// Path of the value, such as carts[3].regularItems[0].amount; empty for the body itself.
    std::string path;
    /// What was expected at `path`, such as "unsigned integer".
    std::string expected;

    /// One English sentence for a developer.
    [[nodiscard]] QUILLET_BACKEND_API std::string description() const;

    bool operator==(const DecodingError&) const = default;
};

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
