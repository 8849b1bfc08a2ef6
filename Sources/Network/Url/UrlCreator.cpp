#include "Network/Url/UrlCreator.hpp"

#include "Platform/Json/Utf8.hpp"

#include <string_view>

namespace quillet {

namespace {

constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr std::string_view digits = "0123456789";
// RFC 3986: beyond letters and digits, "-._~" are unreserved, "!$&'()*+,;=" are sub-delims, and a pchar is
// one of these or ":" or "@".
constexpr std::string_view marksOfPath = "-._~!$&'()*+,;=:@/";
constexpr std::string_view marksOfQueryText = "-._~!$'()*,:@/?";
constexpr std::string_view marksOfHost = "-.";

bool isAlphanumeric(char c) {
    return letters.contains(c) || digits.contains(c);
}

std::string percentEncoded(std::string_view text, std::string_view marksThatStay) {
    constexpr std::string_view hex = "0123456789ABCDEF";
    std::string encoded;
    encoded.reserve(text.size());
    for (const char c : text) {
        if (isAlphanumeric(c) || marksThatStay.contains(c)) {
            encoded += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            encoded += {'%', hex[byte >> 4], hex[byte & 15]};
        }
    }
    return encoded;
}

bool isBareHost(std::string_view host) {
    if (host.empty() || !isAlphanumeric(host.front()) || !isAlphanumeric(host.back()) ||
        host.contains("..")) {
        return false;
    }
    for (const char c : host) {
        if (!isAlphanumeric(c) && !marksOfHost.contains(c)) {
            return false;
        }
    }
    return true;
}

} // namespace

std::expected<platform::Url, NetworkServiceError> UrlCreator::createUrl(const std::string& domainUrl,
                                                                        const std::string& path) const {
    return createUrl(domainUrl, path, {});
}

std::expected<platform::Url, NetworkServiceError>
UrlCreator::createUrl(const std::string& domainUrl, const std::string& path,
                      const std::vector<UrlQueryItem>& urlQueryItems) const {
    if (!isBareHost(domainUrl) || (!path.empty() && !path.starts_with('/')) || !platform::isUtf8(path)) {
        return std::unexpected(NetworkServiceError::invalidUrl);
    }
    platform::Url url{.host = domainUrl, .pathAndQuery = percentEncoded(path, marksOfPath)};
    char separator = '?';
    for (const auto& [name, value] : urlQueryItems) {
        if (!platform::isUtf8(name) || !platform::isUtf8(value)) {
            return std::unexpected(NetworkServiceError::invalidUrl);
        }
        url.pathAndQuery += separator;
        url.pathAndQuery += percentEncoded(name, marksOfQueryText);
        url.pathAndQuery += '=';
        url.pathAndQuery += percentEncoded(value, marksOfQueryText);
        separator = '&';
    }
    return url;
}

} // namespace quillet
