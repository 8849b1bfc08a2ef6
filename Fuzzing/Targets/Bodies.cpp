#include "Fuzzing/Reference/Everything.hpp"
#include "Fuzzing/Reference/Tree.hpp"
#include "Fuzzing/Target.hpp"
#include "Network/Errors/ErrorFields.hpp"
#include "Network/Errors/HttpErrorFactory.hpp"

namespace quillet::fuzzing {

template <typename Record>
static void decodeBody(const std::string& body) {
    const char* const wrong = disagreement<Record>(body);
    require(!wrong, wrong);
}

template <typename Decoded, typename Response>
static void decodeResponse(const std::string& body) {
    decodeBody<Decoded>(body);
    const auto decoded = platform::json::decode<Decoded>(body);
    const auto response = Response::create(body);
    require(decoded.has_value() == response.has_value(), "the factory gives what the decoder gives");
    require(response || response.error().index() == std::variant_size_v<typename Response::Error> - 1 ||
                decoded.error().path == "message",
            "only a verdict has an error of its own");
}

template <typename Model, HttpErrorModel model>
static void parseErrorBody(const std::string& body) {
    decodeBody<Model>(body);
    constexpr int status = 418;
    const auto decoded = platform::json::decode<Model>(body);
    const ServiceError error = HttpErrorFactory().parseError(body, status, model);
    require(error == (decoded ? ServiceError(*decoded) : HttpStatusCodeError{status}),
            "a body is the error that it holds, or else the status");
}

static const Target targets[] = {
    {"differential", decodeBody<Everything>},
    {"open-orders", decodeResponse<OpenOrdersResponse, OpenOrdersResponse>},
    {"order", decodeResponse<std::optional<OrderResponse>, OrderResponse>},
    {"checkout", decodeResponse<CheckoutResponse, CheckoutResponse>},
    {"client-error", parseErrorBody<ClientError, HttpErrorModel::clientError>},
    {"server-error", parseErrorBody<ServerError, HttpErrorModel::serverError>},
};

} // namespace quillet::fuzzing
