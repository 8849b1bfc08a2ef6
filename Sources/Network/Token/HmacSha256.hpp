#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillet {

/// The 32 bytes of HMAC-SHA256 of any bytes under a key of any bytes; nothing if OpenSSL could not compute
/// them. Pure; any thread.
[[nodiscard]] std::optional<std::string> hmacSha256(std::string_view content, std::string_view key);

} // namespace quillet
