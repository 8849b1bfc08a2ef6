#include "Platform/Http/Curl/CurlLibrary.hpp"
#include "Platform/Http/URLSession.hpp"
#include "Support/FakeNetworkPath.hpp"
#include "Support/SandboxedSession.hpp"
#include "Support/SilentPort.hpp"

#include <gtest/gtest.h>
#include <openssl/conf.h>
#include <openssl/opensslv.h>

#include <atomic>
#include <cstdlib>

namespace quillet {

namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using enum platform::URLError::Code;

struct SessionReach : ::testing::Test {
    // Ignores the proxy settings of the machine.
    void SetUp() override {
        for (const char* const name :
             {"https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY", "no_proxy", "NO_PROXY"}) {
            unsetenv(name);
        }
    }
};

// The code of a POST's error; none has the value 0.
platform::URLError::Code errorOf(const platform::URLSession& session,
                                 const std::string& host = testing::gatewayHost) {
    testing::CallRecorder calls;
    session.dataTask({.url = {host, "/"}, .httpMethod = "POST"}, calls.completion()).resume();
    const auto& outcome = calls.wait();
    return outcome.error.value_or(platform::URLError{platform::URLError::Code{}, ""}).code;
}

} // namespace

// A label of 64 letters is not a valid name, so no name server is asked.
const std::string noName = std::string(64, 'a') + ".test";
// Nobody listens there.
constexpr std::uint16_t closedPort = 1;

TEST_F(SessionReach, AsksForANetworkOnlyWhereTheHostIsNotReached) {
    testing::SandboxedSession sandbox;
    const auto outcome = [&](const testing::FakeNetworkPath::Answer& answer, const std::string& host) {
        const auto path = std::make_shared<testing::FakeNetworkPath>(answer);
        sandbox.configuration.networkPath = path;
        const auto code = errorOf(platform::URLSession(sandbox.configuration), host);
        EXPECT_TRUE(path->asked.count() == 0 || path->asked.threadOf() != std::this_thread::get_id());
        return std::pair(code, path->asked.count() == 0 ? "nobody" : path->asked.wait());
    };
    const auto none = [](auto&&...) { return false; };
    const auto there = [](auto&&...) { return true; };
    const auto failing = [](auto&&...) -> bool { throw std::bad_alloc(); };
    auto& mapping = sandbox.configuration.hostMappings[0];
    sandbox.server.enqueue(testing::Answer::complete(200, "{}"));
    EXPECT_EQ(outcome(none, testing::gatewayHost), std::pair(platform::URLError::Code{}, "nobody"s));
    mapping.port = closedPort;
    EXPECT_EQ(outcome(none, testing::gatewayHost), std::pair(notConnectedToInternet, "gateway.test mapped"s));
    EXPECT_EQ(outcome(there, testing::gatewayHost), std::pair(cannotConnectToHost, "gateway.test mapped"s));
    EXPECT_EQ(outcome(none, noName), std::pair(notConnectedToInternet, noName));
    // The system reports a TCP connection to the broadcast address as an unreachable network.
    EXPECT_EQ(outcome(there, "255.255.255.255"), std::pair(cannotConnectToHost, "255.255.255.255"s));
    // A failing monitor does not mean that there is no network.
    EXPECT_EQ(outcome(failing, noName), std::pair(cannotFindHost, noName));
    // To the system's monitor a mapped host needs no network.
    sandbox.configuration.networkPath = nullptr;
    mapping.address = noName;
    EXPECT_EQ(errorOf(platform::URLSession(sandbox.configuration)), cannotFindHost);
}

// The first attempts get no reply; then a server takes over the port.
struct ServerFoundLate {
    testing::FakeNetworkPath path{[this](const std::string&, bool) {
        if (++failures == 2) {
            const auto port = dead->port();
            dead.reset();
            server = std::make_unique<testing::FaultServer>(authority.serverContext(testing::gatewayHost),
                                                            testing::ServerPlace{.port = port});
            server->enqueue(testing::Answer::complete(200, "{}"));
        }
        return true;
    }};
    testing::TestAuthority authority;
    std::unique_ptr<testing::SilentPort> dead =
        std::make_unique<testing::SilentPort>(testing::SilentPort::Kind::dropping);
    std::unique_ptr<testing::FaultServer> server;
    std::atomic<int> failures = 0;
};

TEST_F(SessionReach, TriesAnewToConnectForAsLongAsTheCallHasTime) {
    // The session must not free this last: its detached thread could do so while OpenSSL's exit handlers run.
    ServerFoundLate late;
    const auto clock = std::make_shared<testing::ManualClock>();
    const auto observer = std::make_shared<testing::TrafficLog>();
    testing::CallRecorder calls;
    const platform::URLSession session(
        {.caBundleFile = late.authority.bundleFile(),
         .hostMappings = {{.host = testing::gatewayHost, .address = "127.0.0.1", .port = late.dead->port()}},
         .networkPath = {std::shared_ptr<void>(), &late.path},
         .clock = clock,
         .observer = observer,
         // Less than one second, after which the system would retransmit its own packet.
         .connectTimeout = std::chrono::milliseconds(200)});
    session.dataTask({.url = {testing::gatewayHost, "/"}, .httpMethod = "POST"}, calls.completion()).resume();
    EXPECT_EQ(calls.wait().data, "{}");
    EXPECT_EQ(late.failures, 2);
    EXPECT_EQ(late.server->requests().size(), 1u);
    EXPECT_EQ(observer->lines(),
              (std::vector<std::string>{"0 POST https://gateway.test/", "0 ended 200 0 0"}));
}

// One call is connected and gets no answer; the other, on the same thread, fails to connect five times.
TEST_F(SessionReach, KeepsAConnectionThatIsSlowToSpeak) {
    testing::SandboxedSession sandbox;
    const testing::SilentPort slow;
    const testing::SilentPort dead(testing::SilentPort::Kind::dropping);
    const auto path = std::make_shared<testing::FakeNetworkPath>(true);
    sandbox.configuration.hostMappings = {
        {.host = testing::gatewayHost, .address = "127.0.0.1", .port = slow.port()},
        {.host = "dead.test", .address = "127.0.0.1", .port = dead.port()}};
    sandbox.configuration.networkPath = path;
    sandbox.configuration.connectTimeout = std::chrono::milliseconds(50);
    testing::CallRecorder calls;
    const platform::URLSession session(sandbox.configuration);
    session.dataTask({.url = {testing::gatewayHost, "/"}}, calls.completion()).resume();
    session.dataTask({.url = {"dead.test", "/"}}, calls.completion()).resume();
    for (std::size_t attempt = 0; attempt < 5; ++attempt) {
        EXPECT_EQ(path->asked.wait(attempt), "dead.test mapped");
    }
    EXPECT_EQ(calls.count(), 0u);
}

TEST_F(SessionReach, TrustsTheAuthoritiesOfTheFileAloneOrElseTheSystems) {
    testing::SandboxedSession sandbox;
    // The environment does not count.
    setenv("SSL_CERT_FILE", sandbox.configuration.caBundleFile.c_str(), 1);
    sandbox.configuration.caBundleFile.clear();
    EXPECT_EQ(errorOf(platform::URLSession(sandbox.configuration)), serverCertificateUntrusted);
    sandbox.configuration.caBundleFile = "/nowhere/authorities.pem";
    EXPECT_EQ(errorOf(platform::URLSession(sandbox.configuration)), cannotOpenFile);
    EXPECT_EQ(sandbox.server.requests().size(), 0u);
}

TEST_F(SessionReach, ReachesAMappedHostPastTheProxyOfTheEnvironment) {
    testing::SandboxedSession sandbox;
    sandbox.server.enqueue(testing::Answer::complete(200, "{}"));
    sandbox.configuration.hostMappings[0].host = "GATEWAY.test";
    sandbox.configuration.networkPath = std::make_shared<testing::FakeNetworkPath>(true);
    setenv("https_proxy", "http://127.0.0.1:1", 1);
    testing::CallRecorder calls;
    const platform::URLSession session(sandbox.configuration);
    session.dataTask({.url = {testing::gatewayHost, "/"}}, calls.completion()).resume();
    EXPECT_EQ(calls.wait().data, "{}");
    EXPECT_EQ(errorOf(platform::URLSession(sandbox.configuration), "unmapped.test"), cannotConnectToHost);
    unsetenv("https_proxy");
}

/// A server's part in a handshake.
struct Handshake {
    const char* name;
    std::function<testing::ContextPointer(const testing::TestAuthority&)> context;
    platform::URLError::Code code;

    friend void PrintTo(const Handshake& handshake, std::ostream* stream) { *stream << handshake.name; }
};

testing::ContextPointer speakingOnly(int version, testing::ContextPointer context) {
    SSL_CTX_set_security_level(context.get(), 0);
    SSL_CTX_set_cipher_list(context.get(), "ALL");
    SSL_CTX_set_min_proto_version(context.get(), version);
    SSL_CTX_set_max_proto_version(context.get(), version);
    return context;
}

// Chooses HTTP/2 if the client offers it, as most servers do, although the fault server does not speak it.
int chooseProtocol(SSL*, const unsigned char** chosen, unsigned char* size, const unsigned char* offered,
                   unsigned count, void*) {
    static const unsigned char known[] = "\x02h2\x08http/1.1";
    return SSL_select_next_proto(const_cast<unsigned char**>(chosen), size, known, sizeof known - 1, offered,
                                 count) == OPENSSL_NPN_NEGOTIATED
               ? SSL_TLSEXT_ERR_OK
               : SSL_TLSEXT_ERR_NOACK;
}

// Lets OpenSSL's clients speak all that they can, so that not the machine's settings decide but the module.
void allowOldTls() {
    const std::string_view settings =
        "openssl_conf = all\n[all]\nssl_conf = uses\n[uses]\nsystem_default = old\n"
        "[old]\nMinProtocol = TLSv1\nCipherString = ALL:@SECLEVEL=0\n";
    BIO* const text = BIO_new_mem_buf(settings.data(), static_cast<int>(settings.size()));
    CONF* const read = NCONF_new(nullptr);
    EXPECT_EQ(NCONF_load_bio(read, text, nullptr), 1);
    EXPECT_EQ(CONF_modules_load(read, nullptr, 0), 1);
    NCONF_free(read);
    BIO_free(text);
}

const Handshake handshakes[] = {
    {"SelfSigned", [](auto&) { return testing::TestAuthority::selfSignedContext(testing::gatewayHost); },
     serverCertificateUntrusted},
    // All authorities of the tests have the same name, so that only the signature tells them apart.
    {"OtherAuthority", [](auto&) { return testing::TestAuthority().serverContext(testing::gatewayHost); },
     serverCertificateUntrusted},
    {"OtherHost", [](auto& authority) { return authority.serverContext("other.test"); },
     serverCertificateUntrusted},
    {"Expired", [](auto& authority) { return authority.serverContext(testing::gatewayHost, -2h, -1h); },
     serverCertificateUntrusted},
    {"NotYetValid", [](auto& authority) { return authority.serverContext(testing::gatewayHost, 1h, 2h); },
     serverCertificateUntrusted},
    {"OldTls",
     [](auto& authority) {
         allowOldTls();
         return speakingOnly(TLS1_1_VERSION, authority.serverContext(testing::gatewayHost));
     },
     secureConnectionFailed},
    {"OlderTlsThatStillServes",
     [](auto& authority) {
         return speakingOnly(TLS1_2_VERSION, authority.serverContext(testing::gatewayHost));
     },
     {}},
    {"Http2IfItIsOffered",
     [](auto& authority) {
         auto context = authority.serverContext(testing::gatewayHost);
         SSL_CTX_set_alpn_select_cb(context.get(), &chooseProtocol, nullptr);
         return context;
     },
     {}},
    {"HangsUp", [](auto&) { return testing::ContextPointer(nullptr, &SSL_CTX_free); },
     secureConnectionFailed},
};

struct SessionHandshake : ::testing::TestWithParam<Handshake>, testing::SandboxedSession {};

TEST_P(SessionHandshake, LetsNoByteOfTheRequestOutUnlessItIsSound) {
    const platform::URLSession session(configuration);
    server.setContext(GetParam().context(authority));
    server.enqueue(testing::Answer::complete(200, "{}"));
    const bool isSound = GetParam().code == platform::URLError::Code{};
    EXPECT_EQ(errorOf(session), GetParam().code);
    EXPECT_EQ(server.requests().size(), isSound ? 1u : 0u);
    EXPECT_EQ(server.connections(), 1u);

    server.setContext(authority.serverContext(testing::gatewayHost));
    server.enqueue(testing::Answer::complete(200, "{}"));
    EXPECT_EQ(errorOf(session), platform::URLError::Code{});
}

INSTANTIATE_TEST_SUITE_P(, SessionHandshake, ::testing::ValuesIn(handshakes),
                         [](const auto& parameter) { return parameter.param.name; });

TEST(CurlLibrary, NeedsTheTlsLibraryThatTheModuleWasBuiltWith) {
    const std::string own = "OpenSSL/" + std::to_string(OPENSSL_VERSION_MAJOR) + ".";
    const std::string other = "OpenSSL/" + std::to_string(OPENSSL_VERSION_MAJOR + 1) + ".";
    for (const auto& fit : {own + "0.17", own + "5.4+quic", "(GnuTLS/3.7.9) " + own + "0.17"}) {
        EXPECT_FALSE(platform::faultOfTlsLibrary(fit)) << fit;
    }
    for (const auto& unfit :
         {std::string(), std::string("GnuTLS/3.7.9"), std::string("BoringSSL"), std::string("LibreSSL/3.8.2"),
          other + "0.0", std::string("OpenSSL/1.1.1w"), "GnuTLS/3.7.9 (" + own + "0.17)"}) {
        const auto fault = platform::faultOfTlsLibrary(unfit);
        ASSERT_TRUE(fault) << unfit;
        EXPECT_EQ(fault->code, secureConnectionFailed);
        EXPECT_EQ(fault->message,
                  "libcurl uses \"" + unfit + "\" for TLS, but this module needs " + own + "x");
    }
}

} // namespace quillet
