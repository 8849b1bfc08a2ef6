#pragma once

#include "Quillet/Authorization.hpp"
#include "Quillet/CartForConsultant.hpp"
#include "Quillet/Export.hpp"
#include "Quillet/QuilletNavigationDelegate.hpp"

#include <expected>
#include <memory>
#include <string>

class QMarginsF;
class QQuickItem;

namespace quillet::platform {
class QuickViewController;
}

namespace quillet {

/// A back-end environment; each has a gateway host of its own, chosen when the module is built.
enum class Environment { dev, hml, prd };

/// What a host can configure before it starts the module.
class QuilletConfigurable {
public:
    virtual ~QuilletConfigurable() = default;
    /// Chooses the environment of every Starter built from now on; those built before keep theirs. Main
    /// thread only.
    virtual void configure(Environment environment) = 0;
};

/// The configuration of the process.
class QUILLET_API QuilletConfiguration final : public QuilletConfigurable {
public:
    /// The one configuration, made on first access, which may come from any thread.
    [[nodiscard]] static QuilletConfiguration& shared();

    void configure(Environment environment) override { environment_ = environment; }
    /// Production until configured otherwise.
    [[nodiscard]] Environment environment() const { return environment_; }

private:
    QuilletConfiguration() = default;
    Environment environment_ = Environment::prd;
};

/// Opens the module for one customer's order. An immutable value, made on the host's main thread.
class QUILLET_API Starter {
public:
    /// Signs the consultant's access token and takes the gateway of the environment configured at this
    /// moment. Nothing is checked: an empty token is signed like any other. The one failure is a token that
    /// cannot be signed, which takes a text that is not UTF-8. `authorizationProvider` names the identity
    /// provider that issued the token. The host keeps the ownership of `navigationDelegate`, which may be
    /// null.
    [[nodiscard]] static std::expected<Starter, JWTError>
    create(const std::string& accessToken, std::string authorizationProvider, CartForConsultant cart,
           const std::shared_ptr<QuilletNavigationDelegate>& navigationDelegate);

    /// A new, independent root screen at each call, for `present`.
    [[nodiscard]] std::shared_ptr<platform::QuickViewController> createRootViewController() const;

    [[nodiscard]] const Authorization& authorization() const { return authorization_; }
    [[nodiscard]] const CartForConsultant& cart() const { return cart_; }
    /// The gateway's bare host name.
    [[nodiscard]] const std::string& domainUrl() const { return domainUrl_; }

private:
    Starter(Authorization authorization, CartForConsultant cart, std::string domainUrl,
            std::weak_ptr<QuilletNavigationDelegate> navigationDelegate);

    Authorization authorization_;
    CartForConsultant cart_;
    std::string domainUrl_;
    std::weak_ptr<QuilletNavigationDelegate> navigationDelegate_;
};

/// Pushes a screen of the module on a host's StackView, which owns it from then on: popping it ends it at
/// once and frees everything behind it once its animation is over. A screen is presented once.
///
/// Overlays cover `coverArea`, which must hold the StackView. If it is null they cover the item in which the
/// host keeps the StackView (the nearest that is no layout), and an ApplicationWindow's header and footer; so
/// a host's bar belongs in there. They cover the StackView alone if another visible one is in there too. The
/// host's bar binds to `title` and `hidesBackButton` of the current item's `viewController`. Returns false,
/// with the reason in the log, if the screen could not be shown. Main thread only.
QUILLET_API bool present(const std::shared_ptr<platform::QuickViewController>& screen, QQuickItem& stackView,
                         QQuickItem* coverArea = nullptr);

/// Tells how much of the edges of `area` a notch, rounded corners or a gesture bar of the device take, in
/// device-independent pixels; negative insets count as none. `area` is an item around the StackView, such as
/// the content item of the window. What the module lets a person touch or read then keeps off these edges,
/// also where it is on the screen already. From Qt 6.9 on the module reads them from the window where a host
/// sets none. Main thread only.
QUILLET_API void setSafeAreaInsets(QQuickItem& area, const QMarginsF& insets);

} // namespace quillet
