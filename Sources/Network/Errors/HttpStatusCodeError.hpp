#pragma once

#include <cstdint>

namespace quillet {

/// An answer with an error status whose body is absent or not in the form that the status calls for.
struct HttpStatusCodeError {
    std::int64_t httpStatusCode = 0;

    bool operator==(const HttpStatusCodeError&) const = default;
};

} // namespace quillet
