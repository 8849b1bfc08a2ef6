#pragma once

#include <QString>

namespace quillet {

/// The module's texts that follow the host's language. Each is looked up by its English key in the module's
/// own string table on first use and kept for the life of the process. Main thread only.
struct Localization {
    Localization() = delete;

    static const QString& saleSummary();
    static const QString& youveRegisteredOrder();
    static const QString& orderWasSentToYourCartRemember();
    static const QString& goToHomeScreen();
    static const QString& remember();
    static const QString& youCanKeepCollectingSales();
    static const QString& goToCart();
    static const QString& goToCartButton();
    static const QString& sorryInformationNoLongerAvailable();
    static const QString& goBack();
    static const QString& goBackButton();
    static const QString& productsUnavailableByStock();
    static const QString& productsUnavailableByQuota();
    static const QString& productsNotFound();
    static const QString& checkout();
    static const QString& whoopsWeHadAProblem();
    static const QString& weAreExperiencingInstability();
    static const QString& update();
    static const QString& anotherConsultantRegisteredOrderEarlier();
    static const QString& toAddProductsAskCustomerCreateOrderAgain();
    static const QString& shareMagazine();
    /// For those who hear a screen rather than see it.
    static const QString& close();
    static const QString& loading();
    /// Shown while a call has run for five seconds and more.
    static const QString& takesLongerThanUsual();

    /// "Code: " and the product's code.
    static QString code(quint64 productCode);
    /// A number of points with the word for them, in the plural form that the number asks for.
    static QString pointsCount(quint64 points);
};

} // namespace quillet
