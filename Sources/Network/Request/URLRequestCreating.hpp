#pragma once

#include "Network/Request/URLRequestable.hpp"

#include <memory>

namespace quillet {

/// Begins requests. Pure: may be called on any thread, answers at once.
class URLRequestCreating {
public:
    virtual ~URLRequestCreating() = default;

    /// A new request for the address, without a method; the caller owns it.
    [[nodiscard]] virtual std::unique_ptr<URLRequestable> create(const platform::Url& url) const = 0;
};

} // namespace quillet
