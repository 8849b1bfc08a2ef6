#pragma once

#include "Network/Errors/HttpErrorThrowable.hpp"
#include "Network/Request/URLRequestable.hpp"
#include "Network/Services/SellOutCartCheckoutServiceRequestable.hpp"
#include "Network/Session/URLSessionDataTaskCreating.hpp"
#include "Network/Url/UrlCreating.hpp"
#include "Quillet/Authorization.hpp"

#include <memory>

namespace quillet {

/// POST /quillet-bff/consultants/<country>/<consultant>/sell-out-carts/checkout. A value; copies share their
/// collaborators.
class SellOutCartCheckoutService final : public SellOutCartCheckoutServiceRequestable {
public:
    SellOutCartCheckoutService(Authorization authorization, std::string country, std::uint64_t consultantId,
                               std::string domainUrl,
                               std::shared_ptr<const URLRequestCreating> urlRequestFactory,
                               std::shared_ptr<const URLSessionDataTaskCreating> session,
                               std::shared_ptr<const HttpErrorThrowable> httpErrorFactory,
                               std::shared_ptr<const UrlCreating> urlCreator);

    void checkout(Completion completion) const override;

private:
    Authorization authorization_;
    std::string country_;
    std::uint64_t consultantId_;
    std::string domainUrl_;
    std::shared_ptr<const URLRequestCreating> urlRequestFactory_;
    std::shared_ptr<const URLSessionDataTaskCreating> session_;
    std::shared_ptr<const HttpErrorThrowable> httpErrorFactory_;
    std::shared_ptr<const UrlCreating> urlCreator_;
};

} // namespace quillet
