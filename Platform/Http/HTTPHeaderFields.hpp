#pragma once

#include "Platform/Json/EncodingError.hpp"

#include <expected>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::platform {

struct HTTPHeaderField {
    std::string name;
    std::string value;

    bool operator==(const HTTPHeaderField&) const = default;
};

/// Header fields in the order in which they were added. Values that would break the header syntax are
/// rejected.
class HTTPHeaderFields {
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

} // namespace quillet::platform
