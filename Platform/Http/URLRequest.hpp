#pragma once

#include "Platform/Http/HTTPHeaderFields.hpp"
#include "Platform/Http/Url.hpp"

#include <chrono>
#include <optional>
#include <string>

namespace quillet::platform {

/// One request, as a value.
struct URLRequest {
    Url url;
    /// For the whole call, from its start to the last byte of the answer. Sixty seconds is the platform's
    /// default.
    std::chrono::milliseconds timeoutInterval = std::chrono::seconds(60);
    /// Absent until set; sent as GET then.
    std::optional<std::string> httpMethod = std::nullopt;
    HTTPHeaderFields headerFields = {};
    std::optional<std::string> httpBody = std::nullopt;

    bool operator==(const URLRequest&) const = default;
};

} // namespace quillet::platform
