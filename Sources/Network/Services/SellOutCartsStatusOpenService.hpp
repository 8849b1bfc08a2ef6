#pragma once

#include "Network/Errors/HttpErrorThrowable.hpp"
#include "Network/Request/URLRequestable.hpp"
#include "Network/Services/SellOutCartsStatusOpenServiceParameters.hpp"
#include "Network/Services/SellOutCartsStatusOpenServiceRequestable.hpp"
#include "Network/Session/URLSessionDataTaskCreating.hpp"
#include "Network/Url/UrlCreating.hpp"

#include <memory>

namespace quillet {

/// GET /quillet-bff/consultants/<country>/<consultant>/sell-out-carts?status=OPEN. Sends no authorization
/// provider and so is given the token alone. A value; copies share their collaborators.
class SellOutCartsStatusOpenService final : public SellOutCartsStatusOpenServiceRequestable {
public:
    SellOutCartsStatusOpenService(std::string domainUrl,
                                  SellOutCartsStatusOpenServiceParameters urlParameters,
                                  std::shared_ptr<const URLRequestCreating> urlRequestFactory,
                                  std::string jwtAuthorization,
                                  std::shared_ptr<const URLSessionDataTaskCreating> session,
                                  std::shared_ptr<const HttpErrorThrowable> httpErrorFactory,
                                  std::shared_ptr<const UrlCreating> urlCreator);

    void getOpenOrders(Completion completion) const override;

private:
    std::string domainUrl_;
    SellOutCartsStatusOpenServiceParameters urlParameters_;
    std::shared_ptr<const URLRequestCreating> urlRequestFactory_;
    std::string jwtAuthorization_;
    std::shared_ptr<const URLSessionDataTaskCreating> session_;
    std::shared_ptr<const HttpErrorThrowable> httpErrorFactory_;
    std::shared_ptr<const UrlCreating> urlCreator_;
};

} // namespace quillet
