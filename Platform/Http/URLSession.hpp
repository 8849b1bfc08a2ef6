#pragma once

#include "Platform/Http/URLSessionConfiguration.hpp"
#include "Platform/Http/URLSessionDataTask.hpp"

namespace quillet::platform {

class SessionOwner;

/// Connections of its own and one thread of its own, which begins with the first call and ends by itself when
/// no call is left and session and tasks are gone; nobody ever waits for it. May be used from any thread.
///
/// A call has the request's time-out from its start to its last byte. Nothing but https is spoken,
/// certificates are always verified, redirects are delivered and not followed, and a request other than a GET
/// goes out at most once. A failed call gives its error and nothing else: no part of an answer is ever
/// delivered as a whole one.
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
