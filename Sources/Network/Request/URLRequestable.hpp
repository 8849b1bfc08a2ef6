#pragma once

#include "Platform/Json/JSONValue.hpp"
#include "Quillet/Platform/CodingErrors.hpp"
#include "Quillet/Platform/URLRequest.hpp"

#include <expected>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quillet {

/// A request in the making. Used by one thread at a time; every operation is done when it returns.
class URLRequestable {
public:
    virtual ~URLRequestable() = default;

    /// As it is so far.
    [[nodiscard]] virtual const platform::URLRequest& urlRequest() const = 0;

    /// Absent until set.
    [[nodiscard]] const std::optional<std::string>& httpMethod() const { return urlRequest().httpMethod; }
    virtual void setHttpMethod(std::string method) = 0;

    /// As HTTPHeaderFields::addValue; on an error the request is unchanged.
    [[nodiscard]] virtual std::expected<void, platform::EncodingError>
    addValue(std::string_view value, std::string_view forHTTPHeaderField) = 0;

    /// Writes the members as one JSON object and makes it the body; on an error the body is unchanged. Sets
    /// no content type.
    [[nodiscard]] virtual std::expected<void, platform::EncodingError>
    addToHttpBody(const platform::JSONValue::Object& parameters) = 0;
};

/// Begins requests. Pure: may be called on any thread, answers at once.
class URLRequestCreating {
public:
    virtual ~URLRequestCreating() = default;

    /// A new request for the address, without a method; the caller owns it.
    [[nodiscard]] virtual std::unique_ptr<URLRequestable> create(const platform::Url& url) const = 0;
};

} // namespace quillet
