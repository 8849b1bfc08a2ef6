#include "Network/Token/JWTCreator.hpp"

#include "Network/Token/Base64Url.hpp"
#include "Network/Token/HmacSha256Scrivener.hpp"

#include <utility>

namespace quillet {

std::string description(const JWTError& error) {
    return std::visit([](const auto& one) { return description(one); }, error);
}

std::expected<std::string, JWTError> JWTCreator::createJSONWebToken() const {
    auto token = base64String(header);
    if (!token) {
        return std::unexpected(std::move(token).error());
    }
    const auto payloadSegment = base64String(payload);
    if (!payloadSegment) {
        return std::unexpected(payloadSegment.error());
    }
    token->append(".").append(*payloadSegment);
    const auto signature = scribe->signatureBase64String(*token, secretKey);
    if (!signature) {
        return std::unexpected(signature.error());
    }
    token->append(".").append(*signature);
    return *std::move(token);
}

std::expected<Authorization, JWTError> authorize(const std::string& accessToken, std::string provider,
                                                 const std::string& secretKey) {
    const JWTCreator creator{Header{"HS256", "JWT"}, Payload{accessToken}, secretKey,
                             std::make_shared<HmacSha256Scrivener>()};
    auto token = creator.createJSONWebToken();
    if (!token) {
        return std::unexpected(std::move(token.error()));
    }
    return Authorization{std::move(*token), std::move(provider)};
}

} // namespace quillet
