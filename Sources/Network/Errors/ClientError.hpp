#pragma once

#include "Platform/Json/Field.hpp"

#include <cstdint>
#include <string>
#include <tuple>

namespace quillet {

/// Body of an answer with a status from 400 to 499.
struct ClientError {
    std::string details;
    std::string error;
    std::int64_t statusCode = 0;
    std::string path;

    bool operator==(const ClientError&) const = default;
};

template <>
inline constexpr auto platform::jsonFields<ClientError> = std::tuple{
    platform::json::Field{"details", &ClientError::details},
    platform::json::Field{"error", &ClientError::error},
    platform::json::Field{"statusCode", &ClientError::statusCode},
    platform::json::Field{"path", &ClientError::path},
};

} // namespace quillet
