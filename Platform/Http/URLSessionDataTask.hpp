#pragma once

#include "Platform/Http/URLSessionExchange.hpp"

#include <memory>

namespace quillet::platform {

class SessionOwner;

/// One call of a URLSession.
class URLSessionDataTask {
public:
    URLSessionDataTask(std::shared_ptr<SessionOwner> owner, URLRequest request,
                       URLSessionDataTaskCompletion completionHandler);
    ~URLSessionDataTask();
    URLSessionDataTask(URLSessionDataTask&&) noexcept;
    URLSessionDataTask& operator=(URLSessionDataTask&&) noexcept;

    /// Starts the call and returns at once; a second time does nothing. May be called on any thread. Throws
    /// std::bad_alloc where there is no memory for the call, whose completion then is never called.
    void resume();

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace quillet::platform
