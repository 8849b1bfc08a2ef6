#pragma once

#include "Network/Session/URLSessionDataTaskResumable.hpp"
#include "Platform/Http/URLSessionDataTask.hpp"

namespace quillet {

/// The platform's call behind its role.
class URLSessionDataTaskWrapper final : public URLSessionDataTaskResumable {
public:
    explicit URLSessionDataTaskWrapper(platform::URLSessionDataTask dataTask);

    void resume() override;

private:
    platform::URLSessionDataTask dataTask_;
};

} // namespace quillet
