#include "Tables.hpp"

#include "Checkout/Analytics/CheckoutAnalyticsScreen.hpp"
#include "Checkout/Analytics/ProductsCheckoutStatusAnalyticsEvent.hpp"
#include "SaleSummary/Analytics/SaleSummaryAnalyticsEvent.hpp"
#include "SaleSummary/Analytics/SaleSummaryAnalyticsScreen.hpp"

#include <ostream>

namespace quillet::docs {

namespace {

// No default in these: a new event does not compile before it is told of.
std::string when(SaleSummaryAnalyticsEvent::Case event) {
    switch (event) {
    case SaleSummaryAnalyticsEvent::sendOrdersToCart:
        return "tap on the button that sends the products";
    case SaleSummaryAnalyticsEvent::registerOrderDeepLinking:
        return "the order has become the consultant's, and its dialog is shown";
    case SaleSummaryAnalyticsEvent::registerOrderViewOrders:
        return "tap on that dialog's button";
    case SaleSummaryAnalyticsEvent::registerOrderShareMagazine:
        return "tap on the button of the dialog that another consultant was faster";
    case SaleSummaryAnalyticsEvent::registerOrderClose:
        return "tap on a dialog's close icon";
    }
    return {};
}

std::string when(ProductsCheckoutStatusAnalyticsEvent::Case event) {
    using Event = ProductsCheckoutStatusAnalyticsEvent;
    switch (event) {
    case Event::goToCart:
        return "tap on the button that opens the cart";
    case Event::expandProductsSent:
    case Event::expandProductsNotSent:
        return "tap on the section's head that opens it";
    case Event::hideProductsSent:
    case Event::hideProductsNotSent:
        return "tap on the section's head that closes it";
    }
    return {};
}

template <typename Event>
void printEventsOf(std::ostream& out, const std::string& screen, typename Event::Case last) {
    for (int i = 0; i <= last; ++i) {
        const Event event(static_cast<typename Event::Case>(i));
        printRow(out, {screen, event.category(), event.action(), event.label().value_or(""),
                       when(static_cast<typename Event::Case>(i))});
    }
}

} // namespace

void printScreens(std::ostream& out) {
    using Summary = SaleSummaryAnalyticsScreen;
    printHead(out, {"Name", "When"});
    printRow(out,
             {Summary(Summary::saleSummary).name(), "the first screen is loaded, before its first request"});
    printRow(out, {Summary(Summary::error).name(),
                   "the first screen shows that something failed (time-out, no connection, other errors)"});
    printRow(out, {CheckoutAnalyticsScreen(CheckoutAnalyticsScreen::error).name(),
                   "the checkout failed and its dialog is shown"});
    printRow(out, {ProductsCheckoutStatusAnalyticsScreen().name(), "a result screen is made"});
}

void printEvents(std::ostream& out) {
    printHead(out, {"Screen", "Category", "Action", "Label", "When"});
    printEventsOf<SaleSummaryAnalyticsEvent>(out, "first screen",
                                             SaleSummaryAnalyticsEvent::registerOrderClose);
    printEventsOf<ProductsCheckoutStatusAnalyticsEvent>(
        out, "result", ProductsCheckoutStatusAnalyticsEvent::hideProductsNotSent);
}

} // namespace quillet::docs
