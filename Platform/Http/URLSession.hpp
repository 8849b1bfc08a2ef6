#pragma once

#include "Platform/Http/URLSessionDataTask.hpp"
#include "Quillet/Platform/URLSessionConfiguration.hpp"

namespace quillet::platform {

class SessionOwner;

/// An HTTP session with its own connections and one background thread. The thread starts with the first call.
/// It ends by itself once all calls have ended and the session and its tasks are destroyed; nothing joins it.
/// May be used from any thread.
///
/// The request's time-out covers the whole call, from its start to the last byte. Only https is spoken and
/// certificates are always verified. Redirects are delivered, not followed. A request other than a GET is
/// sent at most once. A failed call delivers an error and no part of a response.
class URLSession {
public:
    explicit URLSession(
        URLSessionConfiguration configuration = URLSessionConfiguration::defaultConfiguration());
    ~URLSession();
    URLSession(const URLSession&) = delete;
    URLSession& operator=(const URLSession&) = delete;

    /// A call that has not started. The completion is called exactly once for a call that is started and
    /// never for one that is not, off the main thread, and is freed after it. Throws std::bad_alloc.
    [[nodiscard]] URLSessionDataTask dataTask(URLRequest request,
                                              URLSessionDataTaskCompletion completionHandler) const;

private:
    std::shared_ptr<SessionOwner> owner_;
};

} // namespace quillet::platform
