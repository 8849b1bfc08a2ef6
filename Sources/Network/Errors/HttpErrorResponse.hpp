#pragma once

#include "Platform/Json/Field.hpp"

#include <cstdint>
#include <string>
#include <tuple>

namespace quillet {

/// What the service behind the gateway answered, as told inside an HttpError.
struct HttpErrorResponse {
    std::int64_t statusCode = 0;
    std::string message;
    std::string error;

    bool operator==(const HttpErrorResponse&) const = default;
};

template <>
inline constexpr auto platform::jsonFields<HttpErrorResponse> = std::tuple{
    platform::json::Field{"statusCode", &HttpErrorResponse::statusCode},
    platform::json::Field{"message", &HttpErrorResponse::message},
    platform::json::Field{"error", &HttpErrorResponse::error},
};

} // namespace quillet
