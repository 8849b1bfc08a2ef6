#pragma once

#include "Models/Json/Field.hpp"

#include <string>
#include <tuple>

namespace quillet {

/// First segment of a token.
struct Header {
    std::string alg = "HS256";
    std::string typ = "JWT";
};

template <>
inline constexpr auto jsonFields<Header> = std::tuple{
    json::Field{"alg", &Header::alg},
    json::Field{"typ", &Header::typ},
};

} // namespace quillet
