#pragma once

#include "Workers/CheckoutWorker.hpp"

namespace quillet {

/// Makes workers that check out. Used on the main thread.
class CheckoutWorkerCreating {
public:
    virtual ~CheckoutWorkerCreating() = default;

    /// A new worker without a delegate.
    [[nodiscard]] virtual std::shared_ptr<CheckoutWorker> create() const = 0;
};

} // namespace quillet
