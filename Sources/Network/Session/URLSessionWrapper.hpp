#pragma once

#include "Network/Session/URLSessionDataTaskCreating.hpp"
#include "Platform/Http/URLSession.hpp"
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

/// The platform's session behind its role. Copies share the session.
class URLSessionWrapper final : public URLSessionDataTaskCreating {
public:
    explicit URLSessionWrapper(std::shared_ptr<const platform::URLSession> session);

    [[nodiscard]] std::unique_ptr<URLSessionDataTaskResumable>
    dataTask(const platform::URLRequest& request,
             platform::URLSessionDataTaskCompletion completionHandler) const override;

private:
    std::shared_ptr<const platform::URLSession> session_;
};

} // namespace quillet
