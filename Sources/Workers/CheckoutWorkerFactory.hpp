#pragma once

#include "Quillet/Authorization.hpp"
#include "Quillet/Export.hpp"
#include "Workers/CheckoutWorkerCreating.hpp"

namespace quillet {

/// Makes workers with the real service, each with a session of its own, for the process's main queue.
class QUILLET_BACKEND_API CheckoutWorkerFactory final : public CheckoutWorkerCreating {
public:
    /// `domainUrl` is the gateway's bare host name.
    CheckoutWorkerFactory(std::string country, std::uint64_t consultantId, Authorization authorization,
                          std::string domainUrl);

    [[nodiscard]] std::shared_ptr<CheckoutWorker> create() const override;

private:
    std::string country_;
    std::uint64_t consultantId_;
    Authorization authorization_;
    std::string domainUrl_;
};

} // namespace quillet
