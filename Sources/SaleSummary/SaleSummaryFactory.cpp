#include "SaleSummary/SaleSummaryFactory.hpp"

#include "KelCommon/KelCommon.hpp"
#include "SaleSummary/Screen/SaleSummaryRouter.hpp"
#include "SaleSummary/Screen/SaleSummaryViewController.hpp"
#include "SaleSummary/UseCases/SaleSummaryUseCaseFactory.hpp"
#include "SaleSummary/ViewModel/SaleSummaryViewModel.hpp"
#include "Workers/AssociateConsultantToCartWorker.hpp"
#include "Workers/CheckoutWorkerFactory.hpp"
#include "Workers/GetOpenOrdersWorkerFactory.hpp"

#include <utility>

namespace quillet {

SaleSummaryFactory::SaleSummaryFactory(CartForConsultant cart, Authorization authorization,
                                       std::string domainUrl,
                                       std::unique_ptr<SaleSummaryConfiguring> configurator,
                                       std::weak_ptr<QuilletNavigationDelegate> navigationDelegate)
    : cart_(std::move(cart)),
      authorization_(std::move(authorization)),
      domainUrl_(std::move(domainUrl)),
      configurator_(std::move(configurator)),
      navigationDelegate_(std::move(navigationDelegate)) {}

std::shared_ptr<platform::QuickViewController> SaleSummaryFactory::createViewController() const {
    auto associateWorker = AssociateConsultantToCartWorker::factoryMethod(cart_.uuid, cart_.consultantId,
                                                                          domainUrl_, authorization_);
    auto openOrdersWorker =
        GetOpenOrdersWorkerFactory(cart_.country, cart_.consultantId, authorization_.jwt, domainUrl_)
            .create();
    auto viewModel = std::make_shared<SaleSummaryViewModel>(kel::KelAnalyticsManager::shared(),
                                                            associateWorker, openOrdersWorker,
                                                            std::make_unique<SaleSummaryUseCaseFactory>());

    auto router = std::make_unique<SaleSummaryRouter>(
        std::make_unique<CheckoutFactory>(std::make_unique<CheckoutWorkerFactory>(
                                              cart_.country, cart_.consultantId, authorization_, domainUrl_),
                                          std::make_unique<CheckoutConfigurator>(), navigationDelegate_));
    auto screen = std::make_shared<SaleSummaryViewController>(
        viewModel, std::make_unique<Colors>(), std::move(router),
        std::make_unique<ViewControllerWrapperFactory>(), std::make_unique<SaleSummaryViewFactory>(),
        navigationDelegate_, std::make_unique<DialogFactory>(), std::make_unique<TryAgainFactory>());
    associateWorker->setDelegate(screen->wayBackTo(*viewModel));
    openOrdersWorker->setDelegate(screen->wayBackTo(*viewModel));
    viewModel->setDelegate(screen->wayBackTo(*screen));
    return screen;
}

} // namespace quillet
