#include "Network/Session/URLSession.hpp"
#include "Support/SandboxedSession.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

namespace quillet {

namespace {

using enum URLError::Code;

class ScriptedPath final : public NetworkPathMonitoring {
public:
    explicit ScriptedPath(bool isThere) : isThere_(isThere) {}

    bool isSatisfied(const std::string& host, bool isMapped) const override {
        asked.record({host + (isMapped ? " mapped" : "")});
        return isThere_;
    }

    mutable testing::Recorder<std::string> asked;

private:
    bool isThere_;
};

URLError::Code errorOf(const URLSessionConfiguration& configuration,
                       const std::string& host = testing::gatewayHost) {
    testing::CallRecorder calls;
    const URLSession session(configuration);
    session.dataTask({.url = {host, "/"}, .httpMethod = "POST"}, calls.completion()).resume();
    const auto& outcome = calls.wait();
    return outcome.error.value_or(URLError{URLError::Code{}, ""}).code;
}

} // namespace

TEST(SessionReach, SendsNothingWithoutANetwork) {
    testing::SandboxedSession sandbox;
    const auto path = std::make_shared<ScriptedPath>(false);
    sandbox.configuration.networkPath = path;
    EXPECT_EQ(errorOf(sandbox.configuration), notConnectedToInternet);
    EXPECT_EQ(path->asked.wait(), "gateway.test mapped");
    EXPECT_NE(path->asked.threadOf(), std::this_thread::get_id());
    EXPECT_EQ(errorOf(sandbox.configuration, "elsewhere.test"), notConnectedToInternet);
    EXPECT_EQ(path->asked.wait(1), "elsewhere.test");
    EXPECT_EQ(sandbox.server.connections(), 0u);
}

TEST(SessionReach, TellsAHostThatIsNotReachedFromNoNetwork) {
    testing::SandboxedSession sandbox;
    auto& mapping = sandbox.configuration.hostMappings[0];
    // Nobody listens at port 1, and a label of 64 letters is no name.
    mapping.port = 1;
    EXPECT_EQ(errorOf(sandbox.configuration), cannotConnectToHost);
    mapping.address = std::string(64, 'a') + ".test";
    EXPECT_EQ(errorOf(sandbox.configuration), cannotFindHost);
    // The system calls a network unreachable that is asked to connect to everybody.
    mapping.address = "255.255.255.255";
    EXPECT_EQ(errorOf(sandbox.configuration), cannotConnectToHost);
    setenv("no_proxy", "*", 1);
    sandbox.configuration.networkPath = std::make_shared<ScriptedPath>(true);
    EXPECT_EQ(errorOf(sandbox.configuration, mapping.address), notConnectedToInternet);
    unsetenv("no_proxy");
}

TEST(SessionReach, TrustsOnlyACertificateOfTheAuthorityForTheHost) {
    testing::SandboxedSession sandbox;
    const testing::TestAuthority stranger;
    const auto real = sandbox.configuration;

    // Authorities of the tests all have the same name, so this one passes for the other until the signature
    // is checked.
    sandbox.configuration.caBundleFile = stranger.bundleFile();
    EXPECT_EQ(errorOf(sandbox.configuration), serverCertificateUntrusted);
    // Without a file of its own the system's authorities count, whatever the environment says.
    setenv("SSL_CERT_FILE", real.caBundleFile.c_str(), 1);
    sandbox.configuration.caBundleFile.clear();
    EXPECT_EQ(errorOf(sandbox.configuration), serverCertificateUntrusted);
    sandbox.configuration.caBundleFile = "/nowhere/authorities.pem";
    EXPECT_EQ(errorOf(sandbox.configuration), cannotOpenFile);
    sandbox.configuration = real;
    sandbox.configuration.hostMappings[0].host = "other.test";
    EXPECT_EQ(errorOf(sandbox.configuration, "other.test"), serverCertificateUntrusted);
    EXPECT_EQ(sandbox.server.requests().size(), 0u);
}

TEST(SessionReach, ReachesAMappedHostPastTheProxyOfTheEnvironment) {
    testing::SandboxedSession sandbox;
    sandbox.server.enqueue(testing::Answer::complete(200, "{}"));
    sandbox.configuration.hostMappings[0].host = "GATEWAY.test";
    sandbox.configuration.networkPath = std::make_shared<ScriptedPath>(true);
    setenv("https_proxy", "http://127.0.0.1:1", 1);
    testing::CallRecorder calls;
    const URLSession session(sandbox.configuration);
    session.dataTask({.url = {testing::gatewayHost, "/"}}, calls.completion()).resume();
    EXPECT_EQ(calls.wait().data, "{}");
    EXPECT_EQ(errorOf(sandbox.configuration, "unmapped.test"), cannotConnectToHost);
    unsetenv("https_proxy");
}

TEST(SessionReach, RefusesAMethodThatIsNone) {
    const testing::SandboxedSession sandbox;
    testing::CallRecorder calls;
    const URLSession session(sandbox.configuration);
    session
        .dataTask({.url = {testing::gatewayHost, "/"}, .httpMethod = "GET / HTTP/1.1\r\nX: "},
                  calls.completion())
        .resume();
    EXPECT_TRUE(calls.wait().error);
}

TEST(SystemNetworkPathMonitor, NeedsNoNetworkForAMappedHost) {
    EXPECT_TRUE(SystemNetworkPathMonitor().isSatisfied(testing::gatewayHost, true));
}

TEST(URLSessionConfiguration, IsReadWhenASessionIsMade) {
    testing::SandboxedSession sandbox;
    sandbox.server.enqueue(testing::Answer::complete(200, "{}"));
    URLSessionConfiguration::setDefaultConfiguration(sandbox.configuration);
    const URLSession session;
    URLSessionConfiguration::setDefaultConfiguration({});
    testing::CallRecorder calls;
    session.dataTask({.url = {testing::gatewayHost, "/"}}, calls.completion()).resume();
    EXPECT_EQ(calls.wait().data, "{}");
}

} // namespace quillet
