#include "Platform/Http/URLSessionDataTask.hpp"

#include "Platform/Http/Session/SessionOwner.hpp"

#include <atomic>
#include <utility>

namespace quillet::platform {

struct URLSessionDataTask::State {
    std::shared_ptr<SessionOwner> owner;
    URLSessionExchange exchange;
    std::atomic_flag isStarted;
};

URLSessionDataTask::URLSessionDataTask(std::shared_ptr<SessionOwner> owner, URLRequest request,
                                       URLSessionDataTaskCompletion completionHandler)
    : state_(std::make_unique<State>(std::move(owner),
                                     URLSessionExchange{std::move(request), std::move(completionHandler)})) {}

URLSessionDataTask::~URLSessionDataTask() = default;
URLSessionDataTask::URLSessionDataTask(URLSessionDataTask&&) noexcept = default;
URLSessionDataTask& URLSessionDataTask::operator=(URLSessionDataTask&&) noexcept = default;

void URLSessionDataTask::resume() {
    if (!state_->isStarted.test_and_set()) {
        state_->owner->start(std::move(state_->exchange));
    }
}

} // namespace quillet::platform
