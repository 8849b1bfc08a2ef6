#include "Checkout/Screen/CheckoutRouter.hpp"

#include "KelCommon/KelCommon.hpp"
#include "Platform/Screens/NavigationController.hpp"
#include "Views/Screen/ViewController.hpp"

#include <utility>

namespace quillet {

namespace {

/// The last two digits of the consultant's cycle; empty without a cycle.
QString cycleText(const CheckoutResponse& response) {
    const auto& cycle = response.consultant.cycle;
    return cycle ? QString::fromStdString(Cycle::onlyCode(*cycle)) : QString();
}

/// The response's products, which keep it alive.
SharedProducts products(const SharedCheckoutResponse& response) {
    return {response, &response->products};
}

template <typename Creating, typename Input>
void show(const Creating& factory, Input input, const ViewController& from) {
    auto screen = std::make_shared<ProductsCheckoutStatusViewController>(
        std::make_unique<LoadingDisplayer>(std::make_unique<LoadingView>()),
        kel::KelAnalyticsManager::shared());
    screen->setView(factory.view(std::move(input), *screen));
    screen->setNavigationDelegate(factory.navigationDelegate());
    screen->setHidesBackButton(true);
    const auto origin = from.originViewController();
    if (auto* navigation = platform::NavigationController::of(origin.get())) {
        navigation->push(screen);
    }
}

} // namespace

CheckoutRouter::CheckoutRouter(std::unique_ptr<AllProductsAddedCreating> allProductsAddedFactory,
                               std::unique_ptr<ProductsPartiallyAddedCreating> productsPartiallyAddedFactory,
                               std::unique_ptr<NoProductAddedCreating> noProductAddedFactory)
    : allProductsAddedFactory_(std::move(allProductsAddedFactory)),
      productsPartiallyAddedFactory_(std::move(productsPartiallyAddedFactory)),
      noProductAddedFactory_(std::move(noProductAddedFactory)) {}

void CheckoutRouter::showAllProductsAdded(const ViewController& viewController,
                                          const SharedCheckoutResponse& response) {
    show(*allProductsAddedFactory_,
         AllProductsAddedFactoryInput(cycleText(*response), response->summary.addedPoints,
                                      response->summary.addedProducts, products(response)),
         viewController);
}

void CheckoutRouter::showProductsPartiallyAdded(const ViewController& viewController,
                                                const SharedCheckoutResponse& response) {
    show(*productsPartiallyAddedFactory_,
         ProductsPartiallyAddedFactoryInput(cycleText(*response), response->summary.addedPoints,
                                            response->summary.addedProducts, response->summary.errorProducts,
                                            products(response), products(response)),
         viewController);
}

void CheckoutRouter::showNoProductAdded(const ViewController& viewController,
                                        const SharedCheckoutResponse& response) {
    show(
        *noProductAddedFactory_,
        NoProductAddedFactoryInput(cycleText(*response), response->summary.errorProducts, products(response)),
        viewController);
}

} // namespace quillet
