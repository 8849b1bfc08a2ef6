#pragma once

#include <string>

namespace quillet::platform {

/// An https address as it goes on the wire: a bare host, no port, and what follows it already
/// percent-encoded. Made by a UrlCreating.
struct Url {
    /// The host name alone.
    std::string host;
    /// Path and query, percent-encoded; begins with "/" or, where there is neither, is empty.
    std::string pathAndQuery;

    [[nodiscard]] std::string absoluteString() const { return "https://" + host + pathAndQuery; }

    bool operator==(const Url&) const = default;
};

} // namespace quillet::platform
