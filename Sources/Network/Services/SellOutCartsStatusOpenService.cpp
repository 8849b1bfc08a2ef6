#include "Network/Services/SellOutCartsStatusOpenService.hpp"

#include "Network/Services/ServiceCall.hpp"
#include "Network/Services/ServiceRequest.hpp"

#include <utility>

namespace quillet {

SellOutCartsStatusOpenService::SellOutCartsStatusOpenService(
    std::string domainUrl, SellOutCartsStatusOpenServiceParameters urlParameters,
    std::shared_ptr<const URLRequestCreating> urlRequestFactory, std::string jwtAuthorization,
    std::shared_ptr<const URLSessionDataTaskCreating> session,
    std::shared_ptr<const HttpErrorThrowable> httpErrorFactory, std::shared_ptr<const UrlCreating> urlCreator)
    : domainUrl_(std::move(domainUrl)),
      urlParameters_(std::move(urlParameters)),
      urlRequestFactory_(std::move(urlRequestFactory)),
      jwtAuthorization_(std::move(jwtAuthorization)),
      session_(std::move(session)),
      httpErrorFactory_(std::move(httpErrorFactory)),
      urlCreator_(std::move(urlCreator)) {}

void SellOutCartsStatusOpenService::getOpenOrders(Completion completion) const {
    const ServiceRequest request{
        .method = "GET",
        .headerFields = {{"Accept", "application/json"}, {"Consultant-Token", jwtAuthorization_}},
    };
    const auto url =
        urlCreator_->createUrl(domainUrl_,
                               "/quillet-bff/consultants/" + urlParameters_.country + "/" +
                                   std::to_string(urlParameters_.consultantId) + "/sell-out-carts",
                               {{"status", "OPEN"}});
    performServiceCall<OpenOrdersResponse, OpenOrdersResult>(
        request.build(*urlRequestFactory_, url), *session_, httpErrorFactory_, std::move(completion));
}

} // namespace quillet
