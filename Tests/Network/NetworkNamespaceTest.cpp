#include "Support/NetworkNamespace.hpp"
#include "Platform/Http/URLSession.hpp"
#include "Support/SandboxedSession.hpp"
#include "Support/Thorough.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

namespace quillet::testing {

namespace {

// An interface that is up, with link-local addresses of both families and no route.
const std::vector<std::string> link = {"link add near type veth peer name far", "link set near up",
                                       "link set far up", "address add 169.254.7.7/16 dev near"};

std::vector<std::string> linkAnd(std::initializer_list<std::string> commands) {
    std::vector<std::string> all = link;
    all.insert(all.end(), commands);
    return all;
}

/// A device with its own network, where the hosts file alone resolves the gateway's name and nothing is
/// mapped.
struct Place {
    std::string name;
    std::string hosts;
    std::vector<std::string> commands;
    /// The status of a call, or the code of its error.
    std::string outcome;
    ServerPlace server = {};

    friend void PrintTo(const Place& place, std::ostream* stream) { *stream << place.name; }
};

const ServerPlace httpsPort{.port = 443};
const std::string toDefault = "route add default dev near";
const std::string itself = "127.0.0.1 gateway.test\n";
const std::string far = "203.0.113.5 gateway.test\n";

const Place places[] = {
    {"NoInterface", far, {"link set lo down"}, "-1009"},
    {"NothingButLoopback", far, {}, "-1009"},
    {"ALinkThatLeadsNowhere", far, link, "-1009"},
    {"ALinkThatLeadsNowhereAndNoName", "", link, "-1009"},
    {"ARouteToTheNextHouseOnly", far, linkAnd({"address add 10.9.8.7/24 dev near"}), "-1009"},
    {"ARouteAndNothingBehind", far, linkAnd({toDefault, "route add unreachable 203.0.113.5"}), "-1004"},
    {"ARouteAndNoName", "", linkAnd({toDefault}), "-1003"},
    {"ARouteAndAClosedPort", itself, linkAnd({toDefault}), "-1004"},
    {"ARouteOfTheOtherFamilyAndAClosedPort", "2001:db8::5 gateway.test\n" + itself, linkAnd({toDefault}),
     "-1004"},
    {"ARouteOfTheNewerFamilyAndNoName", "",
     linkAnd({"-6 route add default dev near", "-6 address add 2001:db8::7/64 dev near nodad"}), "-1003"},
    {"AServerWithoutARoute", itself, {}, "200", httpsPort},
    {"AProxyWithoutARoute", "", {}, "200", {.isProxy = true}},
    {"AProxyThatRefuses", "", {}, "-1004", {.isProxy = true, .proxyStatus = 403}},
    {"AProxyThatWantsALogin", "", {}, "-1004", {.isProxy = true, .proxyStatus = 407}},
    // Packets to the first address are routed back to this machine, which drops them. getaddrinfo() keeps the
    // order of these two, since neither is an address of this machine.
    {"ADeadAddressFirst",
     "198.51.100.9 gateway.test\n203.0.113.10 gateway.test\n",
     {"address add 198.51.100.77/32 dev lo", "route add 198.51.100.0/24 dev lo",
      "route add local 203.0.113.10 dev lo src 198.51.100.77"},
     "200",
     httpsPort},
};

struct SessionPlace : ::testing::TestWithParam<Place> {};

// Prints on standard error the outcome of a POST, how often it was sent, and whether it took too long.
void tryPlace(const Place& place) {
    enterNetworkNamespace(place.hosts, place.commands);
    const TestAuthority authority;
    FaultServer server(authority.serverContext(gatewayHost), place.server);
    server.enqueue(Answer::complete(200, "{}"));
    if (place.server.isProxy) {
        setenv("https_proxy", ("http://127.0.0.1:" + std::to_string(server.port())).c_str(), 1);
    }
    const auto start = std::chrono::steady_clock::now();
    CallRecorder calls;
    const platform::URLSession session(
        {.caBundleFile = authority.bundleFile(), .connectTimeout = std::chrono::seconds(thorough(2, 15))});
    session.dataTask({.url = {gatewayHost, "/"}, .httpMethod = "POST"}, calls.completion()).resume();
    const auto& outcome = calls.wait();
    const bool isLate = std::chrono::steady_clock::now() - start > std::chrono::seconds(10);
    std::cerr << (outcome.error ? static_cast<std::int64_t>(outcome.error->code)
                                : outcome.response->statusCode)
              << " after " << server.requests().size() << (isLate ? ", late" : "") << std::endl;
    std::_Exit(0);
}

} // namespace

TEST_P(SessionPlace, TellsWhereACallFails) {
    if (!mayMakeNetworkNamespace()) {
        GTEST_SKIP() << "This machine lets no process have a network of its own.";
    }
    for (const char* const name : {"https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY"}) {
        unsetenv(name);
    }
    const std::string requests = GetParam().outcome == "200" ? " after 1\n" : " after 0\n";
    EXPECT_EXIT(tryPlace(GetParam()), ::testing::ExitedWithCode(0),
                "^" + GetParam().outcome + requests + "$");
}

INSTANTIATE_TEST_SUITE_P(, SessionPlace, ::testing::ValuesIn(places), ::testing::PrintToStringParamName());

} // namespace quillet::testing
