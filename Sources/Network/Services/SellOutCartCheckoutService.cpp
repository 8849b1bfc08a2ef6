#include "Network/Services/SellOutCartCheckoutService.hpp"

#include "Network/Services/ServiceCall.hpp"
#include "Network/Services/ServiceRequest.hpp"

#include <utility>

namespace quillet {

SellOutCartCheckoutService::SellOutCartCheckoutService(
    Authorization authorization, std::string country, std::uint64_t consultantId, std::string domainUrl,
    std::shared_ptr<const URLRequestCreating> urlRequestFactory,
    std::shared_ptr<const URLSessionDataTaskCreating> session,
    std::shared_ptr<const HttpErrorThrowable> httpErrorFactory, std::shared_ptr<const UrlCreating> urlCreator)
    : authorization_(std::move(authorization)),
      country_(std::move(country)),
      consultantId_(consultantId),
      domainUrl_(std::move(domainUrl)),
      urlRequestFactory_(std::move(urlRequestFactory)),
      session_(std::move(session)),
      httpErrorFactory_(std::move(httpErrorFactory)),
      urlCreator_(std::move(urlCreator)) {}

void SellOutCartCheckoutService::checkout(Completion completion) const {
    const ServiceRequest request{
        .method = "POST",
        .headerFields = {{"Accept", "application/json"},
                         {"Authorization-Provider", authorization_.provider},
                         {"Consultant-Token", authorization_.jwt}},
    };
    const auto url =
        urlCreator_->createUrl(domainUrl_, "/quillet-bff/consultants/" + country_ + "/" +
                                               std::to_string(consultantId_) + "/sell-out-carts/checkout");
    performServiceCall<CheckoutResponse, CheckoutResult>(request.build(*urlRequestFactory_, url), *session_,
                                                         httpErrorFactory_, std::move(completion));
}

} // namespace quillet
