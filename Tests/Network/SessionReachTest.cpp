#include "Network/SessionTest.hpp"
#include "Support/ListeningPort.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

namespace quillet::testing {

namespace {

using namespace std::chrono_literals;
using enum Code;

// A label of 64 letters is not a valid name, so no name server is asked.
const std::string noName = std::string(64, 'a') + ".test";
// Nobody listens there.
constexpr std::uint16_t closedPort = 1;

struct SessionReach : SessionTest {};

} // namespace

TEST_F(SessionReach, AsksForANetworkOnlyWhereTheHostIsNotReached) {
    const auto path = std::make_shared<FakeNetworkPath>([](const std::string& host) {
        return host == noName ? throw std::bad_alloc() : host != gatewayHost;
    });
    configuration.networkPath = path;
    server.enqueue(Answer::complete(200, "{}"));
    EXPECT_EQ(errorOf(platform::URLSession(configuration)), Code());
    EXPECT_EQ(path->asked.count(), 0u);
    configuration.hostMappings[0].port = closedPort;
    const platform::URLSession session(configuration);
    EXPECT_EQ(errorOf(session), notConnectedToInternet);
    EXPECT_EQ(path->asked.wait(), "gateway.test mapped");
    EXPECT_NE(path->asked.threadOf(), std::this_thread::get_id());
    // The system reports a TCP connection to the broadcast address as an unreachable network.
    EXPECT_EQ(errorOf(session, "255.255.255.255"), cannotConnectToHost);
    EXPECT_EQ(path->asked.wait(1), "255.255.255.255");
    // A failing monitor does not mean that there is no network.
    EXPECT_EQ(errorOf(session, noName), cannotFindHost);
    // To the system's monitor a mapped host needs no network.
    configuration.networkPath = nullptr;
    configuration.hostMappings[0].address = noName;
    EXPECT_EQ(errorOf(platform::URLSession(configuration)), cannotFindHost);
}

// The first attempts get no reply; then a server takes over the port.
TEST_F(SessionReach, TriesAnewToConnectForAsLongAsTheCallHasTime) {
    auto dead = std::make_unique<DeadPort>();
    const auto port = dead->port();
    std::unique_ptr<FaultServer> late;
    int failures = 0;
    configuration.networkPath = std::make_shared<FakeNetworkPath>([&](auto&) {
        if (++failures == 2) {
            dead.reset();
            late = std::make_unique<FaultServer>(authority.serverContext(gatewayHost), ServerPlace{port});
            late->enqueue(Answer::complete(200, "{}"));
        }
        return true;
    });
    configuration.hostMappings[0].port = port;
    // Less than one second, after which the system would retransmit its own packet.
    configuration.connectTimeout = 200ms;
    const auto observer = std::make_shared<TrafficLog>();
    configuration.observer = observer;
    EXPECT_EQ(errorOf(platform::URLSession(configuration)), Code());
    EXPECT_EQ(failures, 2);
    EXPECT_EQ(late->requests().size(), 1u);
    EXPECT_EQ(observer->lines.all(),
              (std::vector<std::string>{"0 POST https://gateway.test/", "0 ended 200 0 0"}));
}

// One call is connected and gets no answer; the other, on the same thread, fails to connect five times.
TEST_F(SessionReach, KeepsAConnectionThatIsSlowToSpeak) {
    const ListeningPort slow;
    const DeadPort dead;
    const auto path = std::make_shared<FakeNetworkPath>();
    configuration.hostMappings[0].port = slow.port();
    configuration.hostMappings.push_back({"dead.test", "127.0.0.1", dead.port()});
    configuration.networkPath = path;
    configuration.connectTimeout = 50ms;
    const platform::URLSession session(configuration);
    start(session);
    start(session, {.url = {"dead.test", "/"}});
    EXPECT_EQ(path->asked.wait(4), "dead.test mapped");
    EXPECT_EQ(calls.count(), 0u);
}

TEST_F(SessionReach, TrustsTheAuthoritiesOfTheFileAloneOrElseTheSystems) {
    // The environment does not count.
    setenv("SSL_CERT_FILE", configuration.caBundleFile.c_str(), 1);
    configuration.caBundleFile.clear();
    EXPECT_EQ(errorOf(platform::URLSession(configuration)), serverCertificateUntrusted);
    configuration.caBundleFile = "/nowhere/authorities.pem";
    EXPECT_EQ(errorOf(platform::URLSession(configuration)), cannotOpenFile);
    EXPECT_EQ(server.requests().size(), 0u);
}

TEST_F(SessionReach, ReachesAMappedHostPastTheProxyOfTheEnvironment) {
    server.enqueue(Answer::complete(200, "{}"));
    configuration.hostMappings[0].host = "GATEWAY.test";
    configuration.networkPath = std::make_shared<FakeNetworkPath>();
    setenv("https_proxy", "http://127.0.0.1:1", 1);
    EXPECT_EQ(errorOf(platform::URLSession(configuration)), Code());
    EXPECT_EQ(errorOf(platform::URLSession(configuration), "unmapped.test"), cannotConnectToHost);
    unsetenv("https_proxy");
}

} // namespace quillet::testing
