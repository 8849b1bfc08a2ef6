#pragma once

#include "Network/Session/URLSessionDataTask.hpp"
#include "Network/Session/URLSessionDataTaskResumable.hpp"

namespace quillet {

/// The platform's call behind its role.
class URLSessionDataTaskWrapper final : public URLSessionDataTaskResumable {
public:
    explicit URLSessionDataTaskWrapper(URLSessionDataTask dataTask);

    void resume() override;

private:
    URLSessionDataTask dataTask_;
};

} // namespace quillet
