#pragma once

#include "Network/Errors/ClientError.hpp"
#include "Network/Errors/HttpStatusCodeError.hpp"
#include "Network/Errors/NetworkServiceError.hpp"
#include "Network/Errors/ServerError.hpp"
#include "Platform/Http/URLError.hpp"
#include "Platform/Json/EncodingError.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace quillet {

/// The error of a call: an invalid request, a failed exchange, or a response with an error status. A body
/// that does not decode is not an error.
using ServiceError = std::variant<NetworkServiceError, platform::EncodingError, platform::URLError,
                                  ClientError, ServerError, HttpStatusCodeError>;

/// "HTTP Code: " and the status, a line feed, and the error.
[[nodiscard]] std::string description(const ClientError& error);
/// "HTTP Code: " and the status, a line feed, and the message.
[[nodiscard]] std::string description(const HttpError& error);
/// "HTTP Code: " and the status, a line feed, the message, a line feed, and the error.
[[nodiscard]] std::string description(const HttpErrorResponse& error);
/// The description of the HttpError inside.
[[nodiscard]] std::string description(const ServerError& error);
[[nodiscard]] std::string description(NetworkServiceError error);
[[nodiscard]] std::string description(const HttpStatusCodeError& error);
[[nodiscard]] std::string description(const ServiceError& error);

/// The platform's URL-loading code of an error, -1009 among them; nothing for an error that did not come from
/// the exchange itself.
[[nodiscard]] std::optional<std::int64_t> platformErrorCode(const ServiceError& error);

} // namespace quillet
