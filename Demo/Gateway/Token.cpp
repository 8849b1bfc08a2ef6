#include "Gateway/Token.hpp"

#include "Gateway/Json.hpp"

#include <array>
#include <optional>

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/hmac.h>

namespace quillet::gateway {

namespace {

std::optional<std::string> decodeBase64Url(std::string_view text) {
    constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";
    if (text.size() % 4 == 1 || text.find_first_not_of(alphabet) != std::string_view::npos) {
        return std::nullopt;
    }
    std::string standard(text);
    for (char& letter : standard) {
        letter = letter == '-' ? '+' : letter == '_' ? '/' : letter;
    }
    const std::size_t padding = (4 - standard.size() % 4) % 4;
    standard.append(padding, '=');
    std::string bytes(standard.size() / 4 * 3, '\0');
    const int size = EVP_DecodeBlock(reinterpret_cast<unsigned char*>(bytes.data()),
                                     reinterpret_cast<const unsigned char*>(standard.data()),
                                     static_cast<int>(standard.size()));
    if (size < 0) {
        return std::nullopt;
    }
    bytes.resize(static_cast<std::size_t>(size) - padding);
    return bytes;
}

bool isSignature(std::string_view signature, std::string_view content, std::string_view secret) {
    std::array<unsigned char, EVP_MAX_MD_SIZE> expected{};
    unsigned int size = 0;
    HMAC(EVP_sha256(), secret.data(), static_cast<int>(secret.size()),
         reinterpret_cast<const unsigned char*>(content.data()), content.size(), expected.data(), &size);
    return signature.size() == size && CRYPTO_memcmp(signature.data(), expected.data(), size) == 0;
}

Json parse(const std::optional<std::string>& text) {
    return text ? Json::parse(*text, nullptr, false) : Json(Json::value_t::discarded);
}

} // namespace

std::expected<std::string, std::string> checkToken(std::string_view token, std::string_view secret) {
    const auto first = token.find('.');
    const auto second = first == std::string_view::npos ? first : token.find('.', first + 1);
    if (second == std::string_view::npos || token.find('.', second + 1) != std::string_view::npos) {
        return std::unexpected("Consultant-Token is not three segments joined by points.");
    }
    const auto header = parse(decodeBase64Url(token.substr(0, first)));
    const auto payload = parse(decodeBase64Url(token.substr(first + 1, second - first - 1)));
    const auto signature = decodeBase64Url(token.substr(second + 1));
    if (!header.is_object() || !payload.is_object() || !signature) {
        return std::unexpected(
            "A segment of Consultant-Token is not base64url without padding, or not a JSON object.");
    }
    if (header.value("alg", Json()) != "HS256" || header.value("typ", Json()) != "JWT") {
        return std::unexpected("The header of Consultant-Token is not alg HS256, typ JWT.");
    }
    if (!isSignature(*signature, token.substr(0, second), secret)) {
        return std::unexpected(
            "The signature of Consultant-Token is not the HMAC-SHA256 of its first two segments.");
    }
    const auto access = payload.value("access_token", Json());
    if (!access.is_string()) {
        return std::unexpected("The payload of Consultant-Token holds no text \"access_token\".");
    }
    return access.get<std::string>();
}

} // namespace quillet::gateway
