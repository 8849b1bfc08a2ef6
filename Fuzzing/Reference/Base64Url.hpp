#pragma once

#include <openssl/evp.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>

namespace quillet::fuzzing {

/// The bytes of a base64url text without padding; nothing for any other text.
inline std::optional<std::string> fromBase64Url(std::string text) {
    if (text.find_first_of("+/=") != text.npos) {
        return std::nullopt;
    }
    std::ranges::replace(text, '-', '+');
    std::ranges::replace(text, '_', '/');
    const std::size_t padding = (4 - text.size() % 4) % 4;
    text.append(padding, '=');
    std::string bytes(text.size() / 4 * 3, '\0');
    const int length =
        EVP_DecodeBlock(reinterpret_cast<unsigned char*>(bytes.data()),
                        reinterpret_cast<const unsigned char*>(text.data()), static_cast<int>(text.size()));
    bytes.resize(bytes.size() - padding);
    return length < 0 ? std::nullopt : std::optional(bytes);
}

} // namespace quillet::fuzzing
