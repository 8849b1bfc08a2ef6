#pragma once

#include "Network/Results/OrderResult.hpp"

#include <memory>

namespace quillet {

/// Receives the outcome of associating a consultant with a cart: once for each run, on the main queue, as
/// long as the worker is there. Held weakly.
class AssociateConsultantToCartWorkerDelegate {
public:
    virtual ~AssociateConsultantToCartWorkerDelegate() = default;

    virtual void didAssociate(const std::shared_ptr<const OrderResult>& result) = 0;
};

} // namespace quillet
