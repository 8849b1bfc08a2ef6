#pragma once

#include "Network/Request/HTTPHeaderFields.hpp"

#include <cstdint>
#include <vector>

namespace quillet {

/// The head of a complete answer.
struct HTTPURLResponse {
    std::int64_t statusCode = 0;
    /// In the order received, as received.
    std::vector<HTTPHeaderField> headerFields = {};

    bool operator==(const HTTPURLResponse&) const = default;
};

} // namespace quillet
