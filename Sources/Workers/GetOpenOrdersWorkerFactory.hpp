#pragma once

#include "Quillet/Export.hpp"
#include "Workers/GetOpenOrdersWorkerCreating.hpp"

namespace quillet {

/// Makes workers with the real service, each with a session of its own, for the process's main queue.
class QUILLET_BACKEND_API GetOpenOrdersWorkerFactory final : public GetOpenOrdersWorkerCreating {
public:
    /// `jwtAuthorization` is the signed token alone, `domainUrl` the gateway's bare host name.
    GetOpenOrdersWorkerFactory(std::string country, std::uint64_t consultantId, std::string jwtAuthorization,
                               std::string domainUrl);

    [[nodiscard]] std::shared_ptr<GetOpenOrdersWorker> create() const override;

private:
    std::string country_;
    std::uint64_t consultantId_;
    std::string jwtAuthorization_;
    std::string domainUrl_;
};

} // namespace quillet
