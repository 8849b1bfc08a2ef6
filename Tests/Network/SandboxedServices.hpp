#pragma once

#include "Network/Errors/HttpErrorFactory.hpp"
#include "Network/Request/URLRequestWrapper.hpp"
#include "Network/Services/SellOutCartCheckoutService.hpp"
#include "Network/Services/SellOutCartService.hpp"
#include "Network/Services/SellOutCartsStatusOpenService.hpp"
#include "Network/Session/URLSessionWrapper.hpp"
#include "Network/Url/UrlCreator.hpp"
#include "Support/SandboxedSession.hpp"

namespace quillet::testing {

/// The three services, as the workers make them.
struct Services {
    explicit Services(const platform::URLSessionConfiguration& configuration)
        : session(
              std::make_shared<URLSessionWrapper>(std::make_shared<platform::URLSession>(configuration))) {}

    [[nodiscard]] SellOutCartService associate() const {
        return {session, requests, host, errors, urls, authorization};
    }
    [[nodiscard]] SellOutCartsStatusOpenService openCarts() const {
        return {host, {"PE", 0}, requests, authorization.jwt, session, errors, urls};
    }
    [[nodiscard]] SellOutCartCheckoutService checkout() const {
        return {authorization, "PE", 0, host, requests, session, errors, urls};
    }

    std::shared_ptr<const URLSessionDataTaskCreating> session;
    std::string host = gatewayHost;
    Authorization authorization{"the.signed.token", "provider"};
    std::shared_ptr<URLRequestFactory> requests = std::make_shared<URLRequestFactory>();
    std::shared_ptr<HttpErrorFactory> errors = std::make_shared<HttpErrorFactory>();
    std::shared_ptr<UrlCreator> urls = std::make_shared<UrlCreator>();
};

} // namespace quillet::testing
