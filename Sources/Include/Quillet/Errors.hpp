#pragma once

#include "Quillet/Export.hpp"
#include "Quillet/Platform/CodingErrors.hpp"
#include "Quillet/Platform/URLError.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <tuple>
#include <variant>

namespace quillet {

/// A request that could not be formed.
enum class NetworkServiceError {
    /// Host, path or query do not make an address.
    invalidUrl,
};

/// An answer with an error status whose body is absent or not in the form that the status calls for.
struct HttpStatusCodeError {
    std::int64_t httpStatusCode = 0;

    bool operator==(const HttpStatusCodeError&) const = default;
};

/// Body of an answer with a status from 400 to 499.
struct ClientError {
    std::string details;
    std::string error;
    std::int64_t statusCode = 0;
    std::string path;

    bool operator==(const ClientError&) const = default;
};

/// What the service behind the gateway answered, as told inside an HttpError.
struct HttpErrorResponse {
    std::int64_t statusCode = 0;
    std::string message;
    std::string error;

    bool operator==(const HttpErrorResponse&) const = default;
};

/// The failure inside a ServerError.
struct HttpError {
    HttpErrorResponse response;
    std::int64_t status = 0;
    /// The back end's machine-readable code, such as ERROR_CART_ALREADY_SUBMITTED.
    std::string message;

    bool operator==(const HttpError&) const = default;
};

/// Body of an answer with a status from 500 to 599.
struct ServerError {
    HttpError error;
    std::int64_t statusCode = 0;
    std::string path;

    bool operator==(const ServerError&) const = default;
};

/// The error of a call: an invalid request, a failed exchange, or a response with an error status. A body
/// that does not decode is not an error.
using ServiceError = std::variant<NetworkServiceError, platform::EncodingError, platform::URLError,
                                  ClientError, ServerError, HttpStatusCodeError>;

/// "HTTP Code: " and the status, a line feed, and the error.
[[nodiscard]] QUILLET_BACKEND_API std::string description(const ClientError& error);
/// "HTTP Code: " and the status, a line feed, and the message.
[[nodiscard]] QUILLET_BACKEND_API std::string description(const HttpError& error);
/// "HTTP Code: " and the status, a line feed, the message, a line feed, and the error.
[[nodiscard]] QUILLET_BACKEND_API std::string description(const HttpErrorResponse& error);
/// The description of the HttpError inside.
[[nodiscard]] QUILLET_BACKEND_API std::string description(const ServerError& error);
[[nodiscard]] QUILLET_BACKEND_API std::string description(NetworkServiceError error);
[[nodiscard]] QUILLET_BACKEND_API std::string description(const HttpStatusCodeError& error);
[[nodiscard]] QUILLET_BACKEND_API std::string description(const ServiceError& error);

/// The platform's URL-loading code of an error, -1009 among them; nothing for an error that did not come from
/// the exchange itself.
[[nodiscard]] QUILLET_BACKEND_API std::optional<std::int64_t> platformErrorCode(const ServiceError& error);

} // namespace quillet
