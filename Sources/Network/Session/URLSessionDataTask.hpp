#pragma once

#include "Network/Session/URLSessionDataTaskCreating.hpp"

#include <memory>

namespace quillet {

class SessionOwner;

/// One call of a URLSession.
class URLSessionDataTask {
public:
    URLSessionDataTask(std::shared_ptr<SessionOwner> owner, URLRequest request,
                       URLSessionDataTaskCompletion completionHandler);
    ~URLSessionDataTask();
    URLSessionDataTask(URLSessionDataTask&&) noexcept;
    URLSessionDataTask& operator=(URLSessionDataTask&&) noexcept;

    /// See URLSessionDataTaskResumable.
    void resume();

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace quillet
