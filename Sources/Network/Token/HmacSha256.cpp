#include "Network/Token/HmacSha256.hpp"

#include "Platform/Http/Process/OpenSsl.hpp"

#include <openssl/evp.h>
#include <openssl/hmac.h>

namespace quillet {

std::optional<std::string> hmacSha256(std::string_view content, std::string_view key) {
    platform::keepOpenSslToTheEnd();
    std::string signature(EVP_MAX_MD_SIZE, '\0');
    unsigned length = 0;
    if (!HMAC(EVP_sha256(), key.data(), static_cast<int>(key.size()),
              reinterpret_cast<const unsigned char*>(content.data()), content.size(),
              reinterpret_cast<unsigned char*>(signature.data()), &length)) {
        return std::nullopt;
    }
    signature.resize(length);
    return signature;
}

} // namespace quillet
