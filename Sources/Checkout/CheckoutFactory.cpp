#include "Checkout/CheckoutFactory.hpp"

#include "Checkout/Screen/CheckoutRouter.hpp"
#include "Checkout/Screen/CheckoutViewController.hpp"
#include "Checkout/Screen/CheckoutViewModel.hpp"
#include "KelCommon/KelCommon.hpp"

#include <utility>

namespace quillet {

CheckoutFactory::CheckoutFactory(std::unique_ptr<CheckoutWorkerCreating> checkoutWorkerFactory,
                                 std::unique_ptr<CheckoutConfiguring> configurator,
                                 std::weak_ptr<QuilletNavigationDelegate> navigationDelegate)
    : checkoutWorkerFactory_(std::move(checkoutWorkerFactory)),
      configurator_(std::move(configurator)),
      navigationDelegate_(std::move(navigationDelegate)) {}

std::shared_ptr<platform::QuickViewController> CheckoutFactory::create() const {
    const auto worker = checkoutWorkerFactory_->create();
    auto viewModel = std::make_shared<CheckoutViewModel>(worker, kel::KelAnalyticsManager::shared());
    viewModel->setNavigationDelegate(navigationDelegate_);
    auto router =
        std::make_unique<CheckoutRouter>(std::make_unique<AllProductsAddedFactory>(navigationDelegate_),
                                         std::make_unique<ProductsPartiallyAddedFactory>(navigationDelegate_),
                                         std::make_unique<NoProductAddedFactory>(navigationDelegate_));
    auto screen = std::make_shared<CheckoutViewController>(
        std::make_unique<Colors>(), viewModel, std::move(router),
        std::make_unique<ViewControllerWrapperFactory>(), std::make_unique<TryAgainFactory>(),
        std::make_unique<DialogFactory>(), navigationDelegate_);
    worker->setDelegate(screen->wayBackTo(*viewModel));
    viewModel->setDelegate(screen->wayBackTo(*screen));
    screen->setHidesBackButton(true);
    return screen;
}

} // namespace quillet
