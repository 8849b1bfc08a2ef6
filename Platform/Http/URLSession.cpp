#include "Platform/Http/URLSession.hpp"

#include "Platform/Http/Session/SessionOwner.hpp"

#include <utility>

namespace quillet::platform {

URLSession::URLSession(URLSessionConfiguration configuration)
    : owner_(std::make_shared<SessionOwner>(std::move(configuration))) {}

URLSession::~URLSession() = default;

URLSessionDataTask URLSession::dataTask(URLRequest request,
                                        URLSessionDataTaskCompletion completionHandler) const {
    return URLSessionDataTask(owner_, std::move(request), std::move(completionHandler));
}

} // namespace quillet::platform
