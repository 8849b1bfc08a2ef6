#pragma once

#include "Models/Json/Field.hpp"

#include <string>
#include <tuple>

namespace quillet {

/// Second segment of a token.
struct Payload {
    /// The consultant's access token as the host gave it.
    std::string accessToken;
};

template <>
inline constexpr auto jsonFields<Payload> = std::tuple{
    json::Field{"access_token", &Payload::accessToken},
};

} // namespace quillet
