#pragma once

#include "Network/Token/HashScribe.hpp"

namespace quillet {

/// Signs with HMAC-SHA256: always 43 characters.
class HmacSha256Scrivener final : public HashScribe {
public:
    [[nodiscard]] std::expected<std::string, HmacSha256Error>
    signatureBase64String(const std::string& contentInBase64String,
                          const std::string& secretKey) const override;
};

} // namespace quillet
