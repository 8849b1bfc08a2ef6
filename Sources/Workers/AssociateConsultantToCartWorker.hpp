#pragma once

#include "Network/Services/SellOutCartServiceRequestable.hpp"
#include "Quillet/Authorization.hpp"
#include "Quillet/Export.hpp"
#include "Quillet/Workers.hpp"
#include "Workers/ServiceWorker.hpp"

namespace quillet {

/// Associates the consultant with the customer's cart.
class QUILLET_BACKEND_API AssociateConsultantToCartWorker final
    : public ServiceWorker<OrderResult, &OrderResult::response, AssociateConsultantToCartWorkerDelegate,
                           &AssociateConsultantToCartWorkerDelegate::didAssociate> {
public:
    AssociateConsultantToCartWorker(std::unique_ptr<const SellOutCartServiceRequestable> service,
                                    std::string cartUUID, std::uint64_t consultantId,
                                    std::unique_ptr<const DispatchQueuing> dispatchMainQueue);

    /// A worker with the real service, a session of its own, and the process's main queue. `domainUrl` is the
    /// gateway's bare host name.
    [[nodiscard]] static std::shared_ptr<AssociateConsultantToCartWorker>
    factoryMethod(std::string cartUUID, std::uint64_t consultantId, std::string domainUrl,
                  Authorization authorization);

private:
    void call(Completion completion) override;

    std::unique_ptr<const SellOutCartServiceRequestable> service_;
    std::string cartUUID_;
    std::uint64_t consultantId_;
};

} // namespace quillet
