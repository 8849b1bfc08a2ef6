#pragma once

#include "Quillet/Authorization.hpp"
#include "Quillet/CartForConsultant.hpp"
#include "Quillet/Export.hpp"
#include "Quillet/Workers.hpp"

#include <memory>
#include <string>

namespace quillet {

/// Makes the workers that call the back end for one customer's order. A host that draws its own screens runs
/// them itself, and drains `platform::mainQueue()` on its main thread. A value. Main thread only.
class QUILLET_BACKEND_API BackendClient {
public:
    /// `domainUrl` is the gateway's bare host name.
    BackendClient(Authorization authorization, CartForConsultant cart, std::string domainUrl);

    // Each returns a new worker that has not run. Its owner starts it with `execute`, any number of times. A
    // destroyed worker calls nobody; its call runs to its end. The delegate is held weakly.
    [[nodiscard]] std::shared_ptr<Executable>
    associate(std::weak_ptr<AssociateConsultantToCartWorkerDelegate> delegate) const;
    [[nodiscard]] std::shared_ptr<Executable>
    getOpenOrders(std::weak_ptr<GetOpenOrdersWorkerDelegate> delegate) const;
    [[nodiscard]] std::shared_ptr<Executable> checkout(std::weak_ptr<CheckoutWorkerDelegate> delegate) const;

private:
    Authorization authorization_;
    CartForConsultant cart_;
    std::string domainUrl_;
};

} // namespace quillet
