#pragma once

#include "Network/Errors/HttpErrorResponse.hpp"

namespace quillet {

/// The failure inside a ServerError.
struct HttpError {
    HttpErrorResponse response;
    std::int64_t status = 0;
    /// The back end's machine-readable code, such as ERROR_CART_ALREADY_SUBMITTED.
    std::string message;

    bool operator==(const HttpError&) const = default;
};

template <>
inline constexpr auto platform::jsonFields<HttpError> = std::tuple{
    platform::json::Field{"response", &HttpError::response},
    platform::json::Field{"status", &HttpError::status},
    platform::json::Field{"message", &HttpError::message},
};

} // namespace quillet
