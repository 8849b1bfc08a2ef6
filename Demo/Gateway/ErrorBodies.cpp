#include "Gateway/ErrorBodies.hpp"

#include "Gateway/Json.hpp"

namespace quillet::gateway {

namespace {

// The request may hold bytes that are not UTF-8, but an error body that quotes it must be valid JSON.
std::string dump(const Json& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

} // namespace

Reply clientError(int status, std::string_view target, std::string_view details) {
    return {.status = status,
            .body = dump({{"details", details},
                          {"error", reasonPhrase(status)},
                          {"statusCode", status},
                          {"path", target}}),
            .headers = {}};
}

Reply serverError(int status, std::string_view target, std::string_view code, std::string_view message) {
    const Json response{{"statusCode", status}, {"message", message}, {"error", reasonPhrase(status)}};
    return {.status = status,
            .body = dump({{"error", {{"response", response}, {"status", status}, {"message", code}}},
                          {"statusCode", status},
                          {"path", target}}),
            .headers = {}};
}

} // namespace quillet::gateway
