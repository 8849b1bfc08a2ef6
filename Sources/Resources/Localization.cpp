#include "Resources/Localization.hpp"

#include "Resources/ModuleBundle.hpp"

namespace quillet {

// Each text is a static of its own, so that it is looked up only when somebody reads it.
#define QUILLET_TEXT(name, key)                                                                              \
    const QString& Localization::name() {                                                                    \
        static const QString text = kel::localized(key, moduleBundle());                                     \
        return text;                                                                                         \
    }

QUILLET_TEXT(saleSummary, "Sale summary")
QUILLET_TEXT(youveRegisteredOrder, "You have previously registered the order!")
QUILLET_TEXT(orderWasSentToYourCartRemember, "This order was sent to your cart, if you want to change the "
                                             "quantity, remember that you can do it in your shopping cart.")
QUILLET_TEXT(goToHomeScreen, "Go to home screen")
QUILLET_TEXT(remember, "Remember")
QUILLET_TEXT(
    youCanKeepCollectingSales,
    "You can continue collecting your sales until you reach the desired score to place your New Order.")
QUILLET_TEXT(goToCart, "Go to cart")
QUILLET_TEXT(goToCartButton, "Go to cart button")
QUILLET_TEXT(sorryInformationNoLongerAvailable, "We're sorry, but this information is no longer available.")
QUILLET_TEXT(goBack, "Go back")
QUILLET_TEXT(goBackButton, "Go back button")
QUILLET_TEXT(productsUnavailableByStock, "Products unavailable by stock")
QUILLET_TEXT(productsUnavailableByQuota, "Products unavailable by quota")
QUILLET_TEXT(productsNotFound, "Products not found")
QUILLET_TEXT(checkout, "Checkout")
QUILLET_TEXT(whoopsWeHadAProblem, "Whoops, we had a problem!")
QUILLET_TEXT(weAreExperiencingInstability,
             "We are experiencing instability in our systems. Please try again later.")
QUILLET_TEXT(update, "Update")
QUILLET_TEXT(anotherConsultantRegisteredOrderEarlier, "Another consultant registered the order earlier!")
QUILLET_TEXT(toAddProductsAskCustomerCreateOrderAgain,
             "If you want to add the products to the shopping cart, ask your customer to access the "
             "interactive digital magazine again and create a new order.")
QUILLET_TEXT(shareMagazine, "Share Magazine")
QUILLET_TEXT(close, "Close")
QUILLET_TEXT(loading, "Loading")
QUILLET_TEXT(takesLongerThanUsual, "This is taking longer than usual.")

#undef QUILLET_TEXT

QString Localization::code(quint64 productCode) {
    static const QString form = kel::localized("Code: ", moduleBundle());
    const QString digits = QString::number(productCode);
    // A host's table may lack the entry, and then the form has no place for the number.
    return form.contains(QLatin1String("%n")) ? QString(form).replace(QLatin1String("%n"), digits)
                                              : form + digits;
}

QString Localization::pointsCount(quint64 points) {
    static const auto words = kel::localizedCount("points count", moduleBundle());
    const QString text = words(points);
    const QString digits = QString::number(points);
    return text.contains(digits) ? text : digits;
}

} // namespace quillet
