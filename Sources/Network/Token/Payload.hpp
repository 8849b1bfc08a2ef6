#pragma once

#include "Platform/Json/Field.hpp"

#include <string>
#include <tuple>

namespace quillet {

/// Second segment of a token.
struct Payload {
    /// The consultant's access token as the host gave it.
    std::string accessToken;
};

template <>
inline constexpr auto platform::jsonFields<Payload> = std::tuple{
    platform::json::Field{"access_token", &Payload::accessToken},
};

} // namespace quillet
