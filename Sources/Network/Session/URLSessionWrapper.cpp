#include "Network/Session/URLSessionWrapper.hpp"

#include <utility>

namespace quillet {

URLSessionDataTaskWrapper::URLSessionDataTaskWrapper(platform::URLSessionDataTask dataTask)
    : dataTask_(std::move(dataTask)) {}

void URLSessionDataTaskWrapper::resume() {
    dataTask_.resume();
}

URLSessionWrapper::URLSessionWrapper(std::shared_ptr<const platform::URLSession> session)
    : session_(std::move(session)) {}

std::unique_ptr<URLSessionDataTaskResumable>
URLSessionWrapper::dataTask(const platform::URLRequest& request,
                            platform::URLSessionDataTaskCompletion completionHandler) const {
    return std::make_unique<URLSessionDataTaskWrapper>(
        session_->dataTask(request, std::move(completionHandler)));
}

} // namespace quillet
