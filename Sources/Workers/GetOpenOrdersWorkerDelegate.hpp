#pragma once

#include "Network/Results/OpenOrdersResult.hpp"

#include <memory>

namespace quillet {

/// Receives the open carts: once for each run, on the main queue, as long as the worker is there. Held
/// weakly.
class GetOpenOrdersWorkerDelegate {
public:
    virtual ~GetOpenOrdersWorkerDelegate() = default;

    virtual void didGetOpenOrders(const std::shared_ptr<const OpenOrdersResult>& result) = 0;
};

} // namespace quillet
