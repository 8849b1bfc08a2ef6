#pragma once

#include "Quillet/Results.hpp"

#include <memory>

namespace quillet {

/// A piece of work that its owner can start and later ask about. Used on the main thread.
class Executable {
public:
    virtual ~Executable() = default;

    /// Whether the latest run that has ended brought a response; false until one has. A new run leaves it as
    /// it is until it ends.
    [[nodiscard]] virtual bool isFinishedSuccessfully() const = 0;

    /// Starts the work and returns at once. Starting again while a run is on starts another beside it.
    virtual void execute() = 0;
};

/// Receives the outcome of associating a consultant with a cart: once for each run, on the main queue, as
/// long as the worker is there. Held weakly.
class AssociateConsultantToCartWorkerDelegate {
public:
    virtual ~AssociateConsultantToCartWorkerDelegate() = default;

    virtual void didAssociate(const std::shared_ptr<const OrderResult>& result) = 0;
};

/// Receives the open carts: once for each run, on the main queue, as long as the worker is there. Held
/// weakly.
class GetOpenOrdersWorkerDelegate {
public:
    virtual ~GetOpenOrdersWorkerDelegate() = default;

    virtual void didGetOpenOrders(const std::shared_ptr<const OpenOrdersResult>& result) = 0;
};

/// Follows a checkout. Held weakly.
class CheckoutWorkerDelegate {
public:
    virtual ~CheckoutWorkerDelegate() = default;

    /// The request is starting: on every run, on the thread that starts it, before the service is called.
    virtual void willCheckout() = 0;

    /// The outcome: once for each run, on the main queue, as long as the worker is there.
    virtual void didCheckout(const std::shared_ptr<const CheckoutResult>& result) = 0;
};

} // namespace quillet
