#pragma once

#include "Quillet/Errors.hpp"
#include "Quillet/Platform/URLRequest.hpp"

#include <expected>
#include <string>
#include <vector>

namespace quillet {

/// One name and value of a query, both as plain text, not encoded.
struct UrlQueryItem {
    std::string name;
    std::string value;

    bool operator==(const UrlQueryItem&) const = default;
};

/// Builds the addresses of the back end. Pure: may be called on any thread, answers at once.
class UrlCreating {
public:
    virtual ~UrlCreating() = default;

    /// `domainUrl` is a bare host name, `path` plain text that begins with "/" (or is empty).
    [[nodiscard]] virtual std::expected<platform::Url, NetworkServiceError>
    createUrl(const std::string& domainUrl, const std::string& path) const = 0;

    /// The same with a query; the items keep their order. No items, no question mark.
    [[nodiscard]] virtual std::expected<platform::Url, NetworkServiceError>
    createUrl(const std::string& domainUrl, const std::string& path,
              const std::vector<UrlQueryItem>& urlQueryItems) const = 0;
};

} // namespace quillet
