#include "Workers/GetOpenOrdersWorkerFactory.hpp"

#include "Network/Errors/HttpErrorFactory.hpp"
#include "Network/Request/URLRequestWrapper.hpp"
#include "Network/Services/SellOutCartsStatusOpenService.hpp"
#include "Network/Session/URLSessionWrapper.hpp"
#include "Network/Url/UrlCreator.hpp"
#include "Workers/DispatchMainQueueWrapper.hpp"

#include <utility>

namespace quillet {

GetOpenOrdersWorkerFactory::GetOpenOrdersWorkerFactory(std::string country, std::uint64_t consultantId,
                                                       std::string jwtAuthorization, std::string domainUrl)
    : country_(std::move(country)),
      consultantId_(consultantId),
      jwtAuthorization_(std::move(jwtAuthorization)),
      domainUrl_(std::move(domainUrl)) {}

std::shared_ptr<GetOpenOrdersWorker> GetOpenOrdersWorkerFactory::create() const {
    auto service = std::make_unique<SellOutCartsStatusOpenService>(
        domainUrl_, SellOutCartsStatusOpenServiceParameters{country_, consultantId_},
        std::make_shared<URLRequestFactory>(), jwtAuthorization_,
        std::make_shared<URLSessionWrapper>(std::make_shared<platform::URLSession>()),
        std::make_shared<HttpErrorFactory>(), std::make_shared<UrlCreator>());
    return std::make_shared<GetOpenOrdersWorker>(std::move(service),
                                                 std::make_unique<DispatchMainQueueWrapper>());
}

} // namespace quillet
