#pragma once

#include "Network/Request/URLRequestable.hpp"

namespace quillet {

/// A request being built, around the plain value.
class URLRequestWrapper final : public URLRequestable {
public:
    explicit URLRequestWrapper(platform::URLRequest urlRequest);

    [[nodiscard]] const platform::URLRequest& urlRequest() const override { return urlRequest_; }
    void setHttpMethod(std::string method) override;
    [[nodiscard]] std::expected<void, platform::EncodingError>
    addValue(std::string_view value, std::string_view forHTTPHeaderField) override;
    [[nodiscard]] std::expected<void, platform::EncodingError>
    addToHttpBody(const platform::JSONValue::Object& parameters) override;

private:
    platform::URLRequest urlRequest_;
};

/// Begins requests that have sixty seconds and keep to the protocol's own caching rules.
class URLRequestFactory final : public URLRequestCreating {
public:
    [[nodiscard]] std::unique_ptr<URLRequestable> create(const platform::Url& url) const override;
};

} // namespace quillet
