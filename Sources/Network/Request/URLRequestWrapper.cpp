#include "Network/Request/URLRequestWrapper.hpp"

#include "Network/Request/JSONEncoder.hpp"

#include <utility>

namespace quillet {

URLRequestWrapper::URLRequestWrapper(URLRequest urlRequest) : urlRequest_(std::move(urlRequest)) {}

void URLRequestWrapper::setHttpMethod(std::string method) {
    urlRequest_.httpMethod = std::move(method);
}

std::expected<void, EncodingError> URLRequestWrapper::addValue(std::string_view value,
                                                               std::string_view forHTTPHeaderField) {
    return urlRequest_.headerFields.addValue(value, forHTTPHeaderField);
}

std::expected<void, EncodingError> URLRequestWrapper::addToHttpBody(const JSONValue::Object& parameters) {
    auto body = encodeJSON(parameters);
    if (!body) {
        return std::unexpected(std::move(body).error());
    }
    urlRequest_.httpBody = *std::move(body);
    return {};
}

} // namespace quillet
