#include "Workers/GetOpenOrdersWorker.hpp"

#include <utility>

namespace quillet {

GetOpenOrdersWorker::GetOpenOrdersWorker(
    std::unique_ptr<const SellOutCartsStatusOpenServiceRequestable> service,
    std::unique_ptr<const DispatchQueuing> dispatchMainQueue)
    : ServiceWorker(std::move(dispatchMainQueue)), service_(std::move(service)) {}

void GetOpenOrdersWorker::call(Completion completion) {
    service_->getOpenOrders(std::move(completion));
}

} // namespace quillet
