#include "Workers/AssociateConsultantToCartWorker.hpp"

#include "Network/Errors/HttpErrorFactory.hpp"
#include "Network/Request/URLRequestWrapper.hpp"
#include "Network/Services/SellOutCartService.hpp"
#include "Network/Session/URLSessionWrapper.hpp"
#include "Network/Url/UrlCreator.hpp"
#include "Workers/DispatchMainQueueWrapper.hpp"

#include <utility>

namespace quillet {

AssociateConsultantToCartWorker::AssociateConsultantToCartWorker(
    std::unique_ptr<const SellOutCartServiceRequestable> service, std::string cartUUID,
    std::uint64_t consultantId, std::unique_ptr<const DispatchQueuing> dispatchMainQueue)
    : ServiceWorker(std::move(dispatchMainQueue)),
      service_(std::move(service)),
      cartUUID_(std::move(cartUUID)),
      consultantId_(consultantId) {}

std::shared_ptr<AssociateConsultantToCartWorker>
AssociateConsultantToCartWorker::factoryMethod(std::string cartUUID, std::uint64_t consultantId,
                                               std::string domainUrl, Authorization authorization) {
    auto service = std::make_unique<SellOutCartService>(
        std::make_shared<URLSessionWrapper>(std::make_shared<platform::URLSession>()),
        std::make_shared<URLRequestFactory>(), std::move(domainUrl), std::make_shared<HttpErrorFactory>(),
        std::make_shared<UrlCreator>(), std::move(authorization));
    return std::make_shared<AssociateConsultantToCartWorker>(
        std::move(service), std::move(cartUUID), consultantId, std::make_unique<DispatchMainQueueWrapper>());
}

void AssociateConsultantToCartWorker::call(Completion completion) {
    service_->associateConsultantToCart(cartUUID_, consultantId_, std::move(completion));
}

} // namespace quillet
