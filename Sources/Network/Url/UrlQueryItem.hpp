#pragma once

#include <string>

namespace quillet {

/// One name and value of a query, both as plain text, not encoded.
struct UrlQueryItem {
    std::string name;
    std::string value;

    bool operator==(const UrlQueryItem&) const = default;
};

} // namespace quillet
