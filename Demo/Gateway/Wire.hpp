#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillet::gateway {

/// One request as it came in. Header names are kept as written and compared without regard to case.
struct Request {
    std::string method;
    std::string target;
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;

    /// How often a header came.
    [[nodiscard]] std::size_t count(std::string_view name) const;
    /// The first value of a header; empty if it did not come.
    [[nodiscard]] std::string_view header(std::string_view name) const;
};

/// One reply. `headers` are those beside the content type, the length and the connection's.
struct Reply {
    int status = 200;
    std::string body;
    std::vector<std::pair<std::string, std::string>> headers;

    bool operator==(const Reply&) const = default;
};

[[nodiscard]] bool sameHeader(std::string_view left, std::string_view right);

/// "Not Found" for 404, and "Status" for a number that has no name of its own.
[[nodiscard]] std::string_view reasonPhrase(int status);

} // namespace quillet::gateway
