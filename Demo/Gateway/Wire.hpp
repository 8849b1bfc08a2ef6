#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillet::gateway {

/// One request as received. Header names keep their spelling and are compared without regard to case.
struct Request {
    std::string method;
    std::string target;
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;

    /// The number of headers of this name.
    [[nodiscard]] std::size_t count(std::string_view name) const;
    /// The first value of a header; empty if there is none.
    [[nodiscard]] std::string_view header(std::string_view name) const;
};

/// One reply. `headers` excludes Content-Type, Content-Length and Connection, which are added when it is
/// written.
struct Reply {
    int status = 200;
    std::string body;
    std::vector<std::pair<std::string, std::string>> headers;

    bool operator==(const Reply&) const = default;
};

[[nodiscard]] bool sameHeader(std::string_view left, std::string_view right);

/// "Not Found" for 404, and "Status" for an unknown number.
[[nodiscard]] std::string_view reasonPhrase(int status);

} // namespace quillet::gateway
