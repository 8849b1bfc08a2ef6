#pragma once

#include "Quillet/Authorization.hpp"

#include <expected>
#include <string>

namespace quillet {

/// Signs text. Pure: may be called on any thread, answers at once.
class HashScribe {
public:
    virtual ~HashScribe() = default;

    /// The signature of the text under the secret, both taken as the UTF-8 bytes they are, in base64url
    /// without padding.
    [[nodiscard]] virtual std::expected<std::string, HmacSha256Error>
    signatureBase64String(const std::string& contentInBase64String, const std::string& secretKey) const = 0;
};

} // namespace quillet
