#pragma once

#include "Network/Request/URLRequestCreating.hpp"

namespace quillet {

/// Begins requests that have sixty seconds and keep to the protocol's own caching rules.
class URLRequestFactory final : public URLRequestCreating {
public:
    [[nodiscard]] std::unique_ptr<URLRequestable> create(const platform::Url& url) const override;
};

} // namespace quillet
