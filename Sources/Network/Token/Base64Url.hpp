#pragma once

#include "Platform/Json/JSONEncoder.hpp"

#include <expected>
#include <string>
#include <string_view>

namespace quillet {

/// The bytes in base64url, without padding and line breaks.
[[nodiscard]] std::string base64Url(std::string_view bytes);

/// A record as JSON in base64url; fails with the encoder's error.
template <typename Record>
[[nodiscard]] std::expected<std::string, platform::EncodingError> base64String(const Record& record) {
    auto text = platform::encodeJSON(platform::jsonValue(record));
    if (text) {
        *text = base64Url(*text);
    }
    return text;
}

} // namespace quillet
