#include "Quillet/Starter.hpp"

#include "Entry/BuildSettings.hpp"
#include "Platform/Screens/MainQueuePump.hpp"
#include "Platform/Screens/NavigationController.hpp"
#include "Platform/Screens/SafeArea.hpp"
#include "SaleSummary/SaleSummaryFactory.hpp"
#include "Views/QuilletViews.hpp"

#include <QQmlEngine>

#include <utility>

namespace quillet {

namespace {

std::string gatewayHost(Environment environment) {
    switch (environment) {
    case Environment::dev:
        return build::gatewayHostDev;
    case Environment::hml:
        return build::gatewayHostHml;
    case Environment::prd:
        break;
    }
    return build::gatewayHostPrd;
}

} // namespace

std::expected<Starter, JWTError>
Starter::create(const std::string& accessToken, std::string authorizationProvider, CartForConsultant cart,
                const std::shared_ptr<QuilletNavigationDelegate>& navigationDelegate) {
    auto domainUrl = gatewayHost(QuilletConfiguration::shared().environment());
    auto authorization = authorize(accessToken, std::move(authorizationProvider), build::signingSecret);
    if (!authorization) {
        return std::unexpected(std::move(authorization.error()));
    }
    return Starter(*std::move(authorization), std::move(cart), std::move(domainUrl), navigationDelegate);
}

Starter::Starter(Authorization authorization, CartForConsultant cart, std::string domainUrl,
                 std::weak_ptr<QuilletNavigationDelegate> navigationDelegate)
    : authorization_(std::move(authorization)),
      cart_(std::move(cart)),
      domainUrl_(std::move(domainUrl)),
      navigationDelegate_(std::move(navigationDelegate)) {}

std::shared_ptr<platform::QuickViewController> Starter::createRootViewController() const {
    return SaleSummaryFactory(cart_, authorization_, domainUrl_, std::make_unique<SaleSummaryConfigurator>(),
                              navigationDelegate_)
        .createViewController();
}

bool present(const std::shared_ptr<platform::QuickViewController>& screen, QQuickItem& stackView,
             QQuickItem* coverArea) {
    platform::pumpMainQueue();
    if (QQmlEngine* engine = qmlEngine(&stackView)) {
        useQuilletViews(*engine);
    }
    auto& navigation = platform::NavigationController::of(stackView);
    navigation.setCoverArea(coverArea);
    return navigation.push(screen);
}

void setSafeAreaInsets(QQuickItem& area, const QMarginsF& insets) {
    platform::SafeArea::setInsets(area, insets);
}

} // namespace quillet
