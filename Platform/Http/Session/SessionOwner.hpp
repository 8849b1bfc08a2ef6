#pragma once

#include "Platform/Http/Session/SessionLoop.hpp"

#include <memory>
#include <utility>

namespace quillet::platform {

/// Shared by a session and its tasks. Calls may be started while one of them exists.
class SessionOwner {
public:
    explicit SessionOwner(URLSessionConfiguration configuration);
    ~SessionOwner();
    SessionOwner(const SessionOwner&) = delete;
    SessionOwner& operator=(const SessionOwner&) = delete;

    void start(URLSessionExchange exchange) { loop_->start(std::move(exchange)); }

private:
    std::shared_ptr<SessionLoop> loop_;
};

} // namespace quillet::platform
