#include "SaleSummary/Screen/SaleSummaryRouter.hpp"

#include "Platform/Screens/NavigationController.hpp"
#include "Views/Screen/ViewController.hpp"

#include <utility>

namespace quillet {

SaleSummaryRouter::SaleSummaryRouter(std::unique_ptr<CheckoutCreating> checkoutFactory)
    : checkoutFactory_(std::move(checkoutFactory)) {}

void SaleSummaryRouter::showCheckout(const ViewController* from) {
    const auto checkout = checkoutFactory_->create();
    checkout->setHidesBackButton(true);
    const auto origin = from ? from->originViewController() : nullptr;
    if (auto* navigation = platform::NavigationController::of(origin.get())) {
        navigation->push(checkout);
    }
}

} // namespace quillet
