#include "Network/Token/JWTCreator.hpp"

#include "Network/Token/Base64Url.hpp"
#include "Network/Token/HmacSha256Scrivener.hpp"

#include <utility>

namespace quillet {

std::string description(const JWTError& error) {
    return std::visit([](const auto& one) { return description(one); }, error);
}

std::expected<std::string, JWTError> JWTCreator::createJSONWebToken() const {
    const auto headerSegment = base64String(header);
    if (!headerSegment) {
        return std::unexpected(headerSegment.error());
    }
    const auto payloadSegment = base64String(payload);
    if (!payloadSegment) {
        return std::unexpected(payloadSegment.error());
    }
    const std::string content = *headerSegment + "." + *payloadSegment;
    const auto signature = scribe->signatureBase64String(content, secretKey);
    if (!signature) {
        return std::unexpected(signature.error());
    }
    return content + "." + *signature;
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
