#pragma once

#include "Network/Session/URLSessionDataTaskResumable.hpp"
#include "Platform/Http/URLSessionExchange.hpp"

#include <memory>

namespace quillet {

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
