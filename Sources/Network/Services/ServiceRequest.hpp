#pragma once

#include "Network/Request/URLRequestable.hpp"
#include "Quillet/Errors.hpp"

#include <expected>
#include <optional>
#include <string>
#include <vector>

namespace quillet {

/// What a service adds to its address.
struct ServiceRequest {
    std::string method;
    /// In the order in which they are added.
    std::vector<platform::HTTPHeaderField> headerFields;
    std::optional<platform::JSONValue::Object> body = std::nullopt;

    /// The request that is to be sent, or the first thing that is wrong with it.
    [[nodiscard]] std::expected<platform::URLRequest, ServiceError>
    build(const URLRequestCreating& factory,
          const std::expected<platform::Url, NetworkServiceError>& url) const;
};

} // namespace quillet
