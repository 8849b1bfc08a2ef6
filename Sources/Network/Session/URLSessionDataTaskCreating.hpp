#pragma once

#include "Network/Errors/URLError.hpp"
#include "Network/Request/URLRequest.hpp"
#include "Network/Session/HTTPURLResponse.hpp"
#include "Network/Session/URLSessionDataTaskResumable.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace quillet {

/// Takes a call's outcome: either body and response, or the transport error alone. The body of a complete
/// answer is always there, if need be empty (as for a 204). Must not throw.
using URLSessionDataTaskCompletion = std::function<void(
    std::optional<std::string> data, std::optional<HTTPURLResponse> response, std::optional<URLError> error)>;

/// Makes calls. May be used from any thread.
class URLSessionDataTaskCreating {
public:
    virtual ~URLSessionDataTaskCreating() = default;

    /// A call that has not started; the caller owns it. The completion is called exactly once for a call that
    /// is started and never for one that is not, off the main thread, and is freed after it. Throws
    /// std::bad_alloc where there is no memory for the call.
    [[nodiscard]] virtual std::unique_ptr<URLSessionDataTaskResumable>
    dataTask(const URLRequest& request, URLSessionDataTaskCompletion completionHandler) const = 0;
};

} // namespace quillet
