#include "Workers/CheckoutWorkerFactory.hpp"

#include "Network/Errors/HttpErrorFactory.hpp"
#include "Network/Request/URLRequestWrapper.hpp"
#include "Network/Services/SellOutCartCheckoutService.hpp"
#include "Network/Session/URLSessionWrapper.hpp"
#include "Network/Url/UrlCreator.hpp"
#include "Workers/DispatchMainQueueWrapper.hpp"

#include <utility>

namespace quillet {

CheckoutWorkerFactory::CheckoutWorkerFactory(std::string country, std::uint64_t consultantId,
                                             Authorization authorization, std::string domainUrl)
    : country_(std::move(country)),
      consultantId_(consultantId),
      authorization_(std::move(authorization)),
      domainUrl_(std::move(domainUrl)) {}

std::shared_ptr<CheckoutWorker> CheckoutWorkerFactory::create() const {
    auto service = std::make_unique<SellOutCartCheckoutService>(
        authorization_, country_, consultantId_, domainUrl_, std::make_shared<URLRequestFactory>(),
        std::make_shared<URLSessionWrapper>(std::make_shared<platform::URLSession>()),
        std::make_shared<HttpErrorFactory>(), std::make_shared<UrlCreator>());
    return std::make_shared<CheckoutWorker>(std::move(service), std::make_unique<DispatchMainQueueWrapper>());
}

} // namespace quillet
