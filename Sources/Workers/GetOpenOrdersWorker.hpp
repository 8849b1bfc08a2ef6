#pragma once

#include "Network/Services/SellOutCartsStatusOpenServiceRequestable.hpp"
#include "Quillet/Workers.hpp"
#include "Workers/ServiceWorker.hpp"

namespace quillet {

/// Loads the consultant's open carts.
class GetOpenOrdersWorker final
    : public ServiceWorker<OpenOrdersResult, &OpenOrdersResult::response, GetOpenOrdersWorkerDelegate,
                           &GetOpenOrdersWorkerDelegate::didGetOpenOrders> {
public:
    GetOpenOrdersWorker(std::unique_ptr<const SellOutCartsStatusOpenServiceRequestable> service,
                        std::unique_ptr<const DispatchQueuing> dispatchMainQueue);

private:
    void call(Completion completion) override;

    std::unique_ptr<const SellOutCartsStatusOpenServiceRequestable> service_;
};

} // namespace quillet
