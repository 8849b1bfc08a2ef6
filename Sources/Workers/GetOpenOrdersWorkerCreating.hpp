#pragma once

#include "Workers/GetOpenOrdersWorker.hpp"

namespace quillet {

/// Makes workers that load the open carts. Used on the main thread.
class GetOpenOrdersWorkerCreating {
public:
    virtual ~GetOpenOrdersWorkerCreating() = default;

    /// A new worker without a delegate.
    [[nodiscard]] virtual std::shared_ptr<GetOpenOrdersWorker> create() const = 0;
};

} // namespace quillet
