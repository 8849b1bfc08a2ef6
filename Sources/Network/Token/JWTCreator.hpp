#pragma once

#include "Network/Token/HashScribe.hpp"
#include "Network/Token/Header.hpp"
#include "Network/Token/Payload.hpp"
#include "Platform/Json/EncodingError.hpp"

#include <expected>
#include <memory>
#include <string>
#include <variant>

namespace quillet {

/// Why there is no token: a part of it could not be written, or it could not be signed.
using JWTError = std::variant<platform::EncodingError, HmacSha256Error>;

[[nodiscard]] std::string description(const JWTError& error);

/// Builds a signed token. An access token that is not UTF-8 fails.
struct JWTCreator {
    Header header;
    Payload payload;
    /// The key, exactly as written.
    std::string secretKey;
    std::shared_ptr<const HashScribe> scribe;

    [[nodiscard]] std::expected<std::string, JWTError> createJSONWebToken() const;
};

} // namespace quillet
