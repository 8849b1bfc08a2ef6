#include "Network/SessionTest.hpp"
#include "Support/Thorough.hpp"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace quillet::testing {

namespace {

using enum Code;

// An interface that is up, with link-local addresses of both families and no route.
const std::string link = R"(
        ip link add near type veth peer name far
        ip link set near up
        ip link set far up
        ip address add 169.254.7.7/16 dev near
    )";

/// A device with its own network, where the hosts file alone resolves the gateway's name and nothing is
/// mapped.
struct Place {
    std::string name;
    std::string hosts;
    /// Shell commands.
    std::string commands;
    Code error = {};
    ServerPlace server = {};

    friend void PrintTo(const Place& place, std::ostream* stream) { *stream << place.name; }
};

const ServerPlace httpsPort{.port = 443};
const std::string linkToDefault = link + "ip route add default dev near\n";
const std::string itself = "127.0.0.1 gateway.test\n";
const std::string far = "203.0.113.5 gateway.test\n";

const Place places[] = {
    {"NoInterface", far, "ip link set lo down", notConnectedToInternet},
    {"NothingButLoopback", far, "", notConnectedToInternet},
    {"ALinkThatLeadsNowhere", far, link, notConnectedToInternet},
    {"ALinkThatLeadsNowhereAndNoName", "", link, notConnectedToInternet},
    {"ARouteToTheNextHouseOnly", far, link + "ip address add 10.9.8.7/24 dev near", notConnectedToInternet},
    {"ARouteAndNothingBehind", far, linkToDefault + "ip route add unreachable 203.0.113.5",
     cannotConnectToHost},
    {"ARouteAndNoName", "", linkToDefault, cannotFindHost},
    {"ARouteAndAClosedPort", itself, linkToDefault, cannotConnectToHost},
    {"ARouteOfTheOtherFamilyAndAClosedPort", "2001:db8::5 gateway.test\n" + itself, linkToDefault,
     cannotConnectToHost},
    {"ARouteOfTheNewerFamilyAndNoName", "",
     link + "ip -6 route add default dev near\nip -6 address add 2001:db8::7/64 dev near nodad",
     cannotFindHost},
    {"AServerWithoutARoute", itself, "", {}, httpsPort},
    {"AProxyWithoutARoute", "", "", {}, {.isProxy = true}},
    {"AProxyThatRefuses", "", "", cannotConnectToHost, {.isProxy = true, .proxyStatus = 403}},
    {"AProxyThatWantsALogin", "", "", cannotConnectToHost, {.isProxy = true, .proxyStatus = 407}},
    // Packets to the first address are routed back to this machine, which drops them. getaddrinfo() keeps the
    // order of these two, since neither is an address of this machine.
    {"ADeadAddressFirst",
     "198.51.100.9 gateway.test\n203.0.113.10 gateway.test\n",
     "ip address add 198.51.100.77/32 dev lo\n"
     "ip route add 198.51.100.0/24 dev lo\n"
     "ip route add local 203.0.113.10 dev lo src 198.51.100.77",
     {},
     httpsPort},
};

struct SessionPlace : SessionTest, ::testing::WithParamInterface<Place> {};

// The shell command that runs tests of this program in the place. Root may make a network, and other users
// once they have become root in a namespace of users.
std::string inPlace(const Place& place, const std::string& tests) {
    const std::string script = R"(
        bind() { file=$(mktemp); echo "$1" >$file; mount --bind $file $2; rm $file; }
        bind ")" + place.hosts +
                               R"(" /etc/hosts
        # No name server listens there, so a name that is not in the file fails at once.
        [ ! -e /etc/resolv.conf ] || bind "nameserver 127.0.0.1" $(realpath /etc/resolv.conf)
        ip link set lo up
        )" + place.commands + "\nQUILLET_PLACE=1 exec \"" +
                               std::filesystem::read_symlink("/proc/self/exe").string() + "\" " + tests;
    return std::string(geteuid() == 0 ? "unshare" : "unshare --map-root-user") + " --net --mount sh -ec '" +
           script + "'";
}

} // namespace

TEST_P(SessionPlace, TellsWhereACallFails) {
    const auto& place = GetParam();
    if (!std::getenv("QUILLET_PLACE")) {
        if (std::system(inPlace({"Any", "", link}, "--gtest_list_tests >/dev/null").c_str()) != 0) {
            GTEST_SKIP() << "This machine lets no process have a network of its own.";
        }
        const std::string alone = "--gtest_brief=1 --gtest_filter=*/" + place.name;
        EXPECT_EQ(std::system(inPlace(place, alone).c_str()), 0);
        return;
    }
    FaultServer there(authority.serverContext(gatewayHost), place.server);
    there.enqueue(Answer::complete(200, "{}"));
    if (place.server.isProxy) {
        setenv("https_proxy", ("http://127.0.0.1:" + std::to_string(there.port())).c_str(), 1);
    }
    const auto start = std::chrono::steady_clock::now();
    const platform::URLSession session(
        {.caBundleFile = authority.bundleFile(), .connectTimeout = std::chrono::seconds(thorough(2, 15))});
    EXPECT_EQ(errorOf(session), place.error);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    EXPECT_EQ(there.requests().size(), place.error == Code() ? 1u : 0u);
}

INSTANTIATE_TEST_SUITE_P(, SessionPlace, ::testing::ValuesIn(places), ::testing::PrintToStringParamName());

} // namespace quillet::testing
