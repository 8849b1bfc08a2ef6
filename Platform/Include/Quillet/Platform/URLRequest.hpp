#pragma once

#include "Quillet/Export.hpp"
#include "Quillet/Platform/CodingErrors.hpp"

#include <chrono>
#include <expected>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

struct HTTPHeaderField {
    std::string name;
    std::string value;

    bool operator==(const HTTPHeaderField&) const = default;
};

/// Header fields in the order in which they were added. Values that would break the header syntax are
/// rejected.
class QUILLET_BACKEND_API HTTPHeaderFields {
public:
    /// Adds a value; a second one for the same name, whatever its letter case, is joined to the first with a
    /// comma. An EncodingError for a name that is not an HTTP token, and for a value with a control character
    /// other than a tab (a line break would start a header of its own): then nothing is added.
    [[nodiscard]] std::expected<void, EncodingError> addValue(std::string_view value, std::string_view name);

    /// Null if there is no such field. Letter case does not count.
    [[nodiscard]] const std::string* value(std::string_view name) const;

    [[nodiscard]] const std::vector<HTTPHeaderField>& all() const { return fields_; }

    bool operator==(const HTTPHeaderFields&) const = default;

private:
    std::vector<HTTPHeaderField> fields_;
};

/// One request, as a value.
struct URLRequest {
    Url url;
    /// For the whole call, from its start to the last byte of the answer. Sixty seconds is the platform's
    /// default.
    std::chrono::milliseconds timeoutInterval = std::chrono::seconds(60);
    /// Absent until set; sent as GET then.
    std::optional<std::string> httpMethod = std::nullopt;
    HTTPHeaderFields headerFields = {};
    std::optional<std::string> httpBody = std::nullopt;

    bool operator==(const URLRequest&) const = default;
};

} // namespace quillet::platform
