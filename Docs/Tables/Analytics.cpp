#include "Tables.hpp"

#include "Checkout/Analytics/CheckoutAnalyticsScreen.hpp"
#include "Checkout/Analytics/ProductsCheckoutStatusAnalyticsEvent.hpp"
#include "SaleSummary/Analytics/SaleSummaryAnalyticsEvent.hpp"
#include "SaleSummary/Analytics/SaleSummaryAnalyticsScreen.hpp"

#include <ostream>

namespace quillet::docs {

namespace {

// No default in these: what is new does not compile before it is told of.
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

std::string when(SaleSummaryAnalyticsScreen::Case screen) {
    switch (screen) {
    case SaleSummaryAnalyticsScreen::saleSummary:
        return "the first screen is loaded, before its first request";
    case SaleSummaryAnalyticsScreen::error:
        return "the first screen shows that something failed (time-out, no connection, other errors)";
    }
    return {};
}

std::string when(CheckoutAnalyticsScreen::Case screen) {
    switch (screen) {
    case CheckoutAnalyticsScreen::error:
        return "the checkout failed and its dialog is shown";
    }
    return {};
}

template <typename Tracked>
auto allOf() {
    using Case = Tracked::Case;
    return valuesBetween<Case>(0, 15, [](Case value) { return !when(value).empty(); });
}

template <typename Screen>
void printScreensOf(std::ostream& out) {
    for (const auto screen : allOf<Screen>()) {
        printRow(out, {Screen(screen).name(), when(screen)});
    }
}

template <typename Event>
void printEventsOf(std::ostream& out, const std::string& screen) {
    for (const auto value : allOf<Event>()) {
        const Event event(value);
        printRow(out, {screen, event.category(), event.action(), event.label().value_or(""), when(value)});
    }
}

} // namespace

void printScreens(std::ostream& out) {
    printHead(out, {"Name", "When"});
    printScreensOf<SaleSummaryAnalyticsScreen>(out);
    printScreensOf<CheckoutAnalyticsScreen>(out);
    printRow(out, {ProductsCheckoutStatusAnalyticsScreen().name(), "a result screen is made"});
}

void printEvents(std::ostream& out) {
    printHead(out, {"Screen", "Category", "Action", "Label", "When"});
    printEventsOf<SaleSummaryAnalyticsEvent>(out, "first screen");
    printEventsOf<ProductsCheckoutStatusAnalyticsEvent>(out, "result");
}

} // namespace quillet::docs
