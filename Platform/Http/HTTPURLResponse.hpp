#pragma once

#include <cstdint>

namespace quillet::platform {

/// The head of a complete answer.
struct HTTPURLResponse {
    std::int64_t statusCode = 0;

    bool operator==(const HTTPURLResponse&) const = default;
};

} // namespace quillet::platform
