#pragma once

#include "Network/Errors/HttpError.hpp"

namespace quillet {

/// Body of an answer with a status from 500 to 599.
struct ServerError {
    HttpError error;
    std::int64_t statusCode = 0;
    std::string path;

    bool operator==(const ServerError&) const = default;
};

template <>
inline constexpr auto platform::jsonFields<ServerError> = std::tuple{
    platform::json::Field{"error", &ServerError::error},
    platform::json::Field{"statusCode", &ServerError::statusCode},
    platform::json::Field{"path", &ServerError::path},
};

} // namespace quillet
