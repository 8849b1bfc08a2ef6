#pragma once

#include "Platform/Json/Field.hpp"

#include <string>
#include <tuple>

namespace quillet {

/// First segment of a token.
struct Header {
    std::string alg = "HS256";
    std::string typ = "JWT";
};

template <>
inline constexpr auto platform::jsonFields<Header> = std::tuple{
    platform::json::Field{"alg", &Header::alg},
    platform::json::Field{"typ", &Header::typ},
};

} // namespace quillet
