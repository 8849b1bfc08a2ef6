#include "Network/Request/URLRequestWrapper.hpp"

#include "Platform/Json/JSONEncoder.hpp"

#include <utility>

namespace quillet {

URLRequestWrapper::URLRequestWrapper(platform::URLRequest urlRequest) : urlRequest_(std::move(urlRequest)) {}

void URLRequestWrapper::setHttpMethod(std::string method) {
    urlRequest_.httpMethod = std::move(method);
}

std::expected<void, platform::EncodingError>
URLRequestWrapper::addValue(std::string_view value, std::string_view forHTTPHeaderField) {
    return urlRequest_.headerFields.addValue(value, forHTTPHeaderField);
}

std::expected<void, platform::EncodingError>
URLRequestWrapper::addToHttpBody(const platform::JSONValue::Object& parameters) {
    auto body = platform::encodeJSON(parameters);
    if (!body) {
        return std::unexpected(std::move(body).error());
    }
    urlRequest_.httpBody = *std::move(body);
    return {};
}

std::unique_ptr<URLRequestable> URLRequestFactory::create(const platform::Url& url) const {
    return std::make_unique<URLRequestWrapper>(platform::URLRequest{.url = url});
}

} // namespace quillet
