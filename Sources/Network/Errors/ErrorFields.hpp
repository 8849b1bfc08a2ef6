#pragma once

#include "Platform/Json/Field.hpp"
#include "Quillet/Errors.hpp"

#include <tuple>

namespace quillet {

template <>
inline constexpr auto platform::jsonFields<ClientError> = std::tuple{
    platform::json::Field{"details", &ClientError::details},
    platform::json::Field{"error", &ClientError::error},
    platform::json::Field{"statusCode", &ClientError::statusCode},
    platform::json::Field{"path", &ClientError::path},
};

template <>
inline constexpr auto platform::jsonFields<HttpErrorResponse> = std::tuple{
    platform::json::Field{"statusCode", &HttpErrorResponse::statusCode},
    platform::json::Field{"message", &HttpErrorResponse::message},
    platform::json::Field{"error", &HttpErrorResponse::error},
};

template <>
inline constexpr auto platform::jsonFields<HttpError> = std::tuple{
    platform::json::Field{"response", &HttpError::response},
    platform::json::Field{"status", &HttpError::status},
    platform::json::Field{"message", &HttpError::message},
};

template <>
inline constexpr auto platform::jsonFields<ServerError> = std::tuple{
    platform::json::Field{"error", &ServerError::error},
    platform::json::Field{"statusCode", &ServerError::statusCode},
    platform::json::Field{"path", &ServerError::path},
};

} // namespace quillet
