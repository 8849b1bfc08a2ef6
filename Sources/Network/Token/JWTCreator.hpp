#pragma once

#include "Network/Token/HashScribe.hpp"
#include "Network/Token/Header.hpp"
#include "Network/Token/Payload.hpp"
#include "Quillet/Authorization.hpp"

#include <expected>
#include <memory>
#include <string>

namespace quillet {

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
