#pragma once

#include "Network/Url/UrlCreating.hpp"

namespace quillet {

/// Builds addresses by the character tables of RFC 3986.
///
/// In a path, the characters that a path segment allows and "/" stay; every other byte of the UTF-8 text,
/// control characters included, is percent-encoded with upper-case digits ("%" becomes "%25"). Dot segments
/// stay as they are. In a query, "&", "=", "+", ";" and "#" inside a name or a value are encoded too, so that
/// nothing in them can be taken for a separator or, in the case of "+", for a blank.
///
/// `invalidUrl` for a host that is not letters, digits, dots and hyphens (no scheme, port, user, slash or
/// brackets), for a path that does not begin with "/", and for text that is not UTF-8.
class UrlCreator final : public UrlCreating {
public:
    [[nodiscard]] std::expected<platform::Url, NetworkServiceError>
    createUrl(const std::string& domainUrl, const std::string& path) const override;
    [[nodiscard]] std::expected<platform::Url, NetworkServiceError>
    createUrl(const std::string& domainUrl, const std::string& path,
              const std::vector<UrlQueryItem>& urlQueryItems) const override;
};

} // namespace quillet
