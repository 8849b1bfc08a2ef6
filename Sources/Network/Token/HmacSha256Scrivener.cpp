#include "Network/Token/HmacSha256Scrivener.hpp"

#include "Network/Token/Base64Url.hpp"
#include "Network/Token/HmacSha256.hpp"
#include "Platform/Json/Utf8.hpp"

namespace quillet {

std::expected<std::string, HmacSha256Error>
HmacSha256Scrivener::signatureBase64String(const std::string& contentInBase64String,
                                           const std::string& secretKey) const {
    if (!platform::isUtf8(contentInBase64String)) {
        return std::unexpected(HmacSha256Error::couldNotTransformContentToSignInData);
    }
    if (!platform::isUtf8(secretKey)) {
        return std::unexpected(HmacSha256Error::couldNotTransformSecretKeyInData);
    }
    const auto signature = hmacSha256(contentInBase64String, secretKey);
    if (!signature) {
        return std::unexpected(HmacSha256Error::couldNotTransformSignatureInData);
    }
    return base64Url(*signature);
}

} // namespace quillet
