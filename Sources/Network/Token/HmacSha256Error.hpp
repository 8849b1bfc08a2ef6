#pragma once

#include <string>

namespace quillet {

/// Why a token could not be signed.
enum class HmacSha256Error {
    couldNotTransformSignatureInData,
    couldNotCreateCharStringFromContent,
    couldNotCreateCharStringFromSecretKey,
    couldNotTransformContentToSignInData,
    couldNotTransformSecretKeyInData,
};

[[nodiscard]] std::string description(HmacSha256Error error);

} // namespace quillet
