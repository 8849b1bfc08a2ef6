#pragma once

#include "Network/Session/URLSession.hpp"
#include "Network/Session/URLSessionDataTaskCreating.hpp"

namespace quillet {

/// The platform's session behind its role. Copies share the session.
class URLSessionWrapper final : public URLSessionDataTaskCreating {
public:
    explicit URLSessionWrapper(std::shared_ptr<const URLSession> session);

    [[nodiscard]] std::unique_ptr<URLSessionDataTaskResumable>
    dataTask(const URLRequest& request, URLSessionDataTaskCompletion completionHandler) const override;

private:
    std::shared_ptr<const URLSession> session_;
};

} // namespace quillet
