#pragma once

#include "Platform/Http/URLSessionExchange.hpp"

#include <memory>

namespace quillet {

/// One call that can be started. The handle may be freed at any time: a call not yet started then never
/// happens, a started one runs to its end.
class URLSessionDataTaskResumable {
public:
    virtual ~URLSessionDataTaskResumable() = default;

    /// Starts the call and returns at once. Starting twice starts once. May be called on any thread. Where
    /// there is no memory it throws std::bad_alloc, and the call's completion will not be called.
    virtual void resume() = 0;
};

/// Makes calls. May be used from any thread.
class URLSessionDataTaskCreating {
public:
    virtual ~URLSessionDataTaskCreating() = default;

    /// A call that has not started; the caller owns it. The completion is called exactly once for a call that
    /// is started and never for one that is not, off the main thread, and is freed after it. Throws
    /// std::bad_alloc where there is no memory for the call.
    [[nodiscard]] virtual std::unique_ptr<URLSessionDataTaskResumable>
    dataTask(const platform::URLRequest& request,
             platform::URLSessionDataTaskCompletion completionHandler) const = 0;
};

} // namespace quillet
