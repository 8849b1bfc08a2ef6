#include "Network/Session/URLSessionWrapper.hpp"

#include "Network/Session/URLSessionDataTaskWrapper.hpp"

#include <utility>

namespace quillet {

URLSessionWrapper::URLSessionWrapper(std::shared_ptr<const URLSession> session)
    : session_(std::move(session)) {}

std::unique_ptr<URLSessionDataTaskResumable>
URLSessionWrapper::dataTask(const URLRequest& request, URLSessionDataTaskCompletion completionHandler) const {
    return std::make_unique<URLSessionDataTaskWrapper>(
        session_->dataTask(request, std::move(completionHandler)));
}

} // namespace quillet
