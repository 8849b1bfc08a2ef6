#pragma once

#include <string>

namespace quillet::platform {

/// Why a body could not be decoded. Tells where in the body and what was expected there, and nothing of what
/// the body held, so that it may be written anywhere.
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
    /// The way to the value from the top of the body, such as carts[3].regularItems[0].amount; empty for the
    /// body itself.
    std::string path;
    /// What was expected at `path`, such as "unsigned integer".
    std::string expected;

    /// One English sentence for a developer.
    [[nodiscard]] std::string description() const;

    bool operator==(const DecodingError&) const = default;
};

} // namespace quillet::platform
