// One order from a terminal, without Qt: "backend-only PORT CA.PEM" talks to the project's own gateway.
#include <Quillet/Backend.hpp>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <thread>

namespace {

const std::string gateway = "gateway-dev.quillet.example";

// Each answer starts the next call.
struct Order : quillet::AssociateConsultantToCartWorkerDelegate,
               quillet::GetOpenOrdersWorkerDelegate,
               quillet::CheckoutWorkerDelegate {
    void didAssociate(const std::shared_ptr<const quillet::OrderResult>& result) override {
        std::cout << "associated: " << result->httpStatusCode << '\n';
        finishOr(getOpenOrders, *result);
    }
    void didGetOpenOrders(const std::shared_ptr<const quillet::OpenOrdersResult>& result) override {
        for (const auto& order : result->response.value_or(quillet::OpenOrdersResponse()).openOrders) {
            std::cout << order.uuid << ": " << order.totalItems << " items, " << order.total.toString()
                      << '\n';
        }
        finishOr(checkout, *result);
    }
    void willCheckout() override { std::cout << "sending\n"; }
    void didCheckout(const std::shared_ptr<const quillet::CheckoutResult>& result) override {
        if (result->checkoutResponse) {
            std::cout << result->checkoutResponse->summary.addedProducts << " products sent, "
                      << result->checkoutResponse->summary.errorProducts << " not\n";
        }
        status = result->checkoutResponse ? EXIT_SUCCESS : EXIT_FAILURE;
        isOver = true;
    }
    void finishOr(const std::shared_ptr<quillet::Executable>& next, const auto& result) {
        if (!result.error) {
            next->execute();
            return;
        }
        std::cerr << quillet::description(*result.error) << '\n';
        isOver = true;
    }

    std::shared_ptr<quillet::Executable> getOpenOrders;
    std::shared_ptr<quillet::Executable> checkout;
    bool isOver = false;
    int status = EXIT_FAILURE;
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "backend-only PORT CA.PEM\n";
        return EXIT_FAILURE;
    }
    quillet::platform::URLSessionConfiguration configuration;
    configuration.caBundleFile = argv[2];
    configuration.hostMappings = {{gateway, "127.0.0.1", static_cast<std::uint16_t>(std::atoi(argv[1]))}};
    quillet::platform::URLSessionConfiguration::setDefaultConfiguration(configuration);

    const auto authorization =
        quillet::authorize("access token of the host's login", "identity-provider", "527308");
    if (!authorization) {
        std::cerr << quillet::description(authorization.error()) << '\n';
        return EXIT_FAILURE;
    }
    const quillet::BackendClient client(
        *authorization,
        {.uuid = "7f3c9a10-52e1-4d0b-9c77-1f0a6b2e84d3", .consultantId = 41052, .country = "CL"}, gateway);
    const auto order = std::make_shared<Order>();
    order->getOpenOrders = client.getOpenOrders(order);
    order->checkout = client.checkout(order);
    const auto associate = client.associate(order);
    associate->execute();
    while (!order->isOver) {
        quillet::platform::mainQueue().drain();
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return order->status;
}
