#pragma once

#include "Network/Request/URLRequestable.hpp"

namespace quillet {

/// A request being built, around the plain value.
class URLRequestWrapper final : public URLRequestable {
public:
    explicit URLRequestWrapper(URLRequest urlRequest);

    [[nodiscard]] const URLRequest& urlRequest() const override { return urlRequest_; }
    void setHttpMethod(std::string method) override;
    [[nodiscard]] std::expected<void, EncodingError> addValue(std::string_view value,
                                                              std::string_view forHTTPHeaderField) override;
    [[nodiscard]] std::expected<void, EncodingError>
    addToHttpBody(const JSONValue::Object& parameters) override;

private:
    URLRequest urlRequest_;
};

} // namespace quillet
