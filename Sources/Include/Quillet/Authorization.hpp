#pragma once

#include "Quillet/Export.hpp"
#include "Quillet/Platform/CodingErrors.hpp"

#include <expected>
#include <string>
#include <variant>

namespace quillet {

/// Who the consultant is, as every call says it.
struct Authorization {
    /// The signed token.
    std::string jwt;
    /// The identity provider that issued the consultant's access token, as the host named it.
    std::string provider;

    bool operator==(const Authorization&) const = default;
};

/// Why a token could not be signed.
enum class HmacSha256Error {
    couldNotTransformSignatureInData,
    couldNotCreateCharStringFromContent,
    couldNotCreateCharStringFromSecretKey,
    couldNotTransformContentToSignInData,
    couldNotTransformSecretKeyInData,
};

[[nodiscard]] QUILLET_BACKEND_API std::string description(HmacSha256Error error);

/// Why there is no token: a part of it could not be written, or it could not be signed.
using JWTError = std::variant<platform::EncodingError, HmacSha256Error>;

[[nodiscard]] QUILLET_BACKEND_API std::string description(const JWTError& error);

/// Signs the consultant's access token with `secretKey`, the secret that the application shares with the back
/// end. Fails only for text that is not UTF-8. May be called on any thread.
[[nodiscard]] QUILLET_BACKEND_API std::expected<Authorization, JWTError>
authorize(const std::string& accessToken, std::string provider, const std::string& secretKey);

} // namespace quillet
