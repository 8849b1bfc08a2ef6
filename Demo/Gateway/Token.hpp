#pragma once

#include <expected>
#include <string>
#include <string_view>

namespace quillet::gateway {

/// Checks a signed token: three base64url segments without padding, the header {"alg":"HS256","typ":"JWT"},
/// the payload with the text "access_token", and the HMAC-SHA256 under `secret`, whose bytes are the key as
/// they are. Returns the access token, or what is wrong in words.
[[nodiscard]] std::expected<std::string, std::string> checkToken(std::string_view token,
                                                                 std::string_view secret);

} // namespace quillet::gateway
