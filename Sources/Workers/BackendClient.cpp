#include "Quillet/BackendClient.hpp"

#include "Workers/AssociateConsultantToCartWorker.hpp"
#include "Workers/CheckoutWorkerFactory.hpp"
#include "Workers/GetOpenOrdersWorkerFactory.hpp"

#include <utility>

namespace quillet {

BackendClient::BackendClient(Authorization authorization, CartForConsultant cart, std::string domainUrl)
    : authorization_(std::move(authorization)), cart_(std::move(cart)), domainUrl_(std::move(domainUrl)) {}

std::shared_ptr<Executable>
BackendClient::associate(std::weak_ptr<AssociateConsultantToCartWorkerDelegate> delegate) const {
    auto worker = AssociateConsultantToCartWorker::factoryMethod(cart_.uuid, cart_.consultantId, domainUrl_,
                                                                 authorization_);
    worker->setDelegate(std::move(delegate));
    return worker;
}

std::shared_ptr<Executable>
BackendClient::getOpenOrders(std::weak_ptr<GetOpenOrdersWorkerDelegate> delegate) const {
    auto worker =
        GetOpenOrdersWorkerFactory(cart_.country, cart_.consultantId, authorization_.jwt, domainUrl_)
            .create();
    worker->setDelegate(std::move(delegate));
    return worker;
}

std::shared_ptr<Executable> BackendClient::checkout(std::weak_ptr<CheckoutWorkerDelegate> delegate) const {
    auto worker =
        CheckoutWorkerFactory(cart_.country, cart_.consultantId, authorization_, domainUrl_).create();
    worker->setDelegate(std::move(delegate));
    return worker;
}

} // namespace quillet
