#include "Gateway/Authority.hpp"
#include "Gateway/Options.hpp"
#include "Gateway/Server.hpp"
#include "Gateway/Store.hpp"

#include <csignal>
#include <iostream>
#include <vector>

namespace {

using namespace quillet::gateway;

constexpr int usageStatus = 2;
constexpr int failureStatus = 1;

int fail(int status, const std::string& what) {
    std::cerr << "quillet-gateway: " << what << '\n';
    return status;
}

int runErrand(Database& database, const Options& options) {
    Transaction transaction(database);
    for (const auto& adjustment : options.adjustments) {
        if (const auto applied = apply(database, adjustment); !applied) {
            return fail(failureStatus, applied.error());
        }
    }
    transaction.commit();
    if (options.list) {
        std::cout << incomingOrders(database).dump(2) << '\n';
    }
    return 0;
}

int serve(const Options& options) {
    const auto authority = provideAuthority(options.data, options.ca.value_or(options.data / "ca.pem"));
    if (!authority) {
        return fail(failureStatus, authority.error());
    }
    auto log = Log::open(options.log.value_or(options.data / "gateway.log"));
    if (!log) {
        return fail(failureStatus, log.error());
    }

    const auto& identity = builtInIdentity();
    std::vector<std::string_view> names(identity.hosts.begin(), identity.hosts.end());
    names.emplace_back("localhost");
    const Router router(options.data);
    std::unique_ptr<Server> server;
    try {
        server = std::make_unique<Server>(options.port, makeServer(*authority, names), router, *log);
    } catch (const std::exception& error) {
        return fail(failureStatus,
                    "cannot listen on 127.0.0.1:" + std::to_string(options.port) + ": " + error.what());
    }
    std::cout << "listening on 127.0.0.1:" << server->port() << std::endl;
    server->run(options.stopWithStdin);
    return 0;
}

} // namespace

int main(int count, char** arguments) {
    // Writing to a closed socket or pipe must not end the gateway.
    std::signal(SIGPIPE, SIG_IGN);
    const auto options = parseOptions({arguments + 1, static_cast<std::size_t>(count - 1)});
    if (!options) {
        return fail(usageStatus, options.error() + " (try --help)");
    }
    if (options->help) {
        std::cout << helpText();
        return 0;
    }
    if (options->version) {
        std::cout << "quillet-gateway " << version() << '\n';
        return 0;
    }
    try {
        std::filesystem::create_directories(options->data);
        auto database = openStore(options->data, options->reset);
        return options->isErrand() ? runErrand(database, *options) : serve(*options);
    } catch (const std::exception& error) {
        return fail(failureStatus, error.what());
    }
}
