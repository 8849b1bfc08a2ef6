#include "Quillet/Errors.hpp"

namespace quillet {

namespace {

std::string httpCode(std::int64_t status) {
    return "HTTP Code: " + std::to_string(status);
}

} // namespace

std::string description(const ClientError& error) {
    return httpCode(error.statusCode) + '\n' + error.error;
}

std::string description(const HttpError& error) {
    return httpCode(error.status) + '\n' + error.message;
}

std::string description(const HttpErrorResponse& error) {
    return httpCode(error.statusCode) + '\n' + error.message + '\n' + error.error;
}

std::string description(const ServerError& error) {
    return description(error.error);
}

std::string description(NetworkServiceError error) {
    switch (error) {
    case NetworkServiceError::invalidUrl:
        return "Invalid URL";
    }
    return {};
}

std::string description(const HttpStatusCodeError&) {
    return "The operation couldn’t be completed. (Quillet.HttpStatusCodeError error 1.)";
}

std::string description(const ServiceError& error) {
    return std::visit([](const auto& one) { return description(one); }, error);
}

std::optional<std::int64_t> platformErrorCode(const ServiceError& error) {
    const auto* const urlError = std::get_if<platform::URLError>(&error);
    return urlError ? std::optional(static_cast<std::int64_t>(urlError->code)) : std::nullopt;
}

} // namespace quillet
