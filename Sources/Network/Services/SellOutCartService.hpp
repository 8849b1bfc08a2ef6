#pragma once

#include "Network/Errors/HttpErrorThrowable.hpp"
#include "Network/Request/URLRequestable.hpp"
#include "Network/Services/SellOutCartServiceRequestable.hpp"
#include "Network/Session/URLSessionDataTaskCreating.hpp"
#include "Network/Url/UrlCreating.hpp"
#include "Quillet/Authorization.hpp"

#include <memory>

namespace quillet {

/// PATCH /quillet-bff/sell-out-carts/<cart>. A value; copies share their collaborators.
class SellOutCartService final : public SellOutCartServiceRequestable {
public:
    SellOutCartService(std::shared_ptr<const URLSessionDataTaskCreating> session,
                       std::shared_ptr<const URLRequestCreating> urlRequestFactory, std::string domainUrl,
                       std::shared_ptr<const HttpErrorThrowable> httpErrorFactory,
                       std::shared_ptr<const UrlCreating> urlCreator, Authorization authorization);

    void associateConsultantToCart(const std::string& cartUUID, std::uint64_t consultantId,
                                   Completion completion) const override;

private:
    std::shared_ptr<const URLSessionDataTaskCreating> session_;
    std::shared_ptr<const URLRequestCreating> urlRequestFactory_;
    std::string domainUrl_;
    std::shared_ptr<const HttpErrorThrowable> httpErrorFactory_;
    std::shared_ptr<const UrlCreating> urlCreator_;
    Authorization authorization_;
};

} // namespace quillet
