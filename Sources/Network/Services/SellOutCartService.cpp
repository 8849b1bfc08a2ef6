#include "Network/Services/SellOutCartService.hpp"

#include "Network/Services/ServiceCall.hpp"
#include "Network/Services/ServiceRequest.hpp"

#include <utility>

namespace quillet {

SellOutCartService::SellOutCartService(std::shared_ptr<const URLSessionDataTaskCreating> session,
                                       std::shared_ptr<const URLRequestCreating> urlRequestFactory,
                                       std::string domainUrl,
                                       std::shared_ptr<const HttpErrorThrowable> httpErrorFactory,
                                       std::shared_ptr<const UrlCreating> urlCreator,
                                       Authorization authorization)
    : session_(std::move(session)),
      urlRequestFactory_(std::move(urlRequestFactory)),
      domainUrl_(std::move(domainUrl)),
      httpErrorFactory_(std::move(httpErrorFactory)),
      urlCreator_(std::move(urlCreator)),
      authorization_(std::move(authorization)) {}

void SellOutCartService::associateConsultantToCart(const std::string& cartUUID, std::uint64_t consultantId,
                                                   Completion completion) const {
    const ServiceRequest request{
        .method = "PATCH",
        .headerFields = {{"Content-Type", "application/json"},
                         {"Consultant-Token", authorization_.jwt},
                         {"Authorization-Provider", authorization_.provider}},
        .body =
            platform::JSONValue::Object{{"consultant", platform::JSONValue::Object{{"id", consultantId}}}},
    };
    const auto url = urlCreator_->createUrl(domainUrl_, "/quillet-bff/sell-out-carts/" + cartUUID);
    performServiceCall<OrderResponse, OrderResult>(request.build(*urlRequestFactory_, url), *session_,
                                                   httpErrorFactory_, std::move(completion));
}

} // namespace quillet
