#include "Network/Token/HmacSha256Scrivener.hpp"

#include "Network/Token/Base64Url.hpp"
#include "Platform/Http/Process/OpenSsl.hpp"
#include "Platform/Json/Utf8.hpp"

#include <openssl/evp.h>
#include <openssl/hmac.h>

#include <array>

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
    platform::keepOpenSslToTheEnd();
    std::array<char, EVP_MAX_MD_SIZE> signature{};
    unsigned length = 0;
    if (!HMAC(EVP_sha256(), secretKey.data(), static_cast<int>(secretKey.size()),
              reinterpret_cast<const unsigned char*>(contentInBase64String.data()),
              contentInBase64String.size(), reinterpret_cast<unsigned char*>(signature.data()), &length)) {
        return std::unexpected(HmacSha256Error::couldNotTransformSignatureInData);
    }
    return base64Url({signature.data(), length});
}

} // namespace quillet
