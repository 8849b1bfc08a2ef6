#include "Network/SessionTest.hpp"
#include "Platform/Http/Curl/CurlLibrary.hpp"

#include <gtest/gtest.h>
#include <openssl/conf.h>
#include <openssl/opensslv.h>

namespace quillet::testing {

namespace {

using namespace std::chrono_literals;
using enum Code;

/// A server's part in a handshake.
struct Handshake {
    const char* name;
    std::function<ContextPointer(const TestAuthority&)> context;
    Code code;

    friend void PrintTo(const Handshake& handshake, std::ostream* stream) { *stream << handshake.name; }
};

ContextPointer speakingOnly(int version, ContextPointer context) {
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
    {"SelfSigned", [](auto&) { return TestAuthority::selfSignedContext(gatewayHost); },
     serverCertificateUntrusted},
    // All authorities of the tests have the same name, so that only the signature tells them apart.
    {"OtherAuthority", [](auto&) { return TestAuthority().serverContext(gatewayHost); },
     serverCertificateUntrusted},
    {"OtherHost", [](auto& authority) { return authority.serverContext("other.test"); },
     serverCertificateUntrusted},
    {"Expired", [](auto& authority) { return authority.serverContext(gatewayHost, -2h, -1h); },
     serverCertificateUntrusted},
    {"NotYetValid", [](auto& authority) { return authority.serverContext(gatewayHost, 1h, 2h); },
     serverCertificateUntrusted},
    {"OldTls",
     [](auto& authority) {
         allowOldTls();
         return speakingOnly(TLS1_1_VERSION, authority.serverContext(gatewayHost));
     },
     secureConnectionFailed},
    {"OlderTlsThatStillServes",
     [](auto& authority) { return speakingOnly(TLS1_2_VERSION, authority.serverContext(gatewayHost)); },
     {}},
    {"Http2IfItIsOffered",
     [](auto& authority) {
         auto context = authority.serverContext(gatewayHost);
         SSL_CTX_set_alpn_select_cb(context.get(), &chooseProtocol, nullptr);
         return context;
     },
     {}},
    {"HangsUp", [](auto&) { return ContextPointer(); }, secureConnectionFailed},
};

struct SessionHandshake : SessionTest, ::testing::WithParamInterface<Handshake> {};

} // namespace

TEST_P(SessionHandshake, LetsNoByteOfTheRequestOutUnlessItIsSound) {
    const platform::URLSession session(configuration);
    server.setContext(GetParam().context(authority));
    server.enqueue(Answer::complete(200, "{}"));
    EXPECT_EQ(errorOf(session), GetParam().code);
    EXPECT_EQ(server.requests().size(), GetParam().code == Code() ? 1u : 0u);
    EXPECT_EQ(server.connections(), 1u);

    server.setContext(authority.serverContext(gatewayHost));
    server.enqueue(Answer::complete(200, "{}"));
    EXPECT_EQ(errorOf(session), Code());
}

INSTANTIATE_TEST_SUITE_P(, SessionHandshake, ::testing::ValuesIn(handshakes),
                         ::testing::PrintToStringParamName());

TEST(CurlLibrary, NeedsTheTlsLibraryThatTheModuleWasBuiltWith) {
    const std::string own = "OpenSSL/" + std::to_string(OPENSSL_VERSION_MAJOR) + ".";
    for (const auto& fit : {own + "0.17", own + "5.4+quic", "(GnuTLS/3.7.9) " + own + "0.17"}) {
        EXPECT_EQ(platform::faultOfTlsLibrary(fit), std::nullopt) << fit;
    }
    for (const std::string unfit : {"", "GnuTLS/3.7.9", "BoringSSL", "LibreSSL/3.8.2", "OpenSSL/1.1.1w",
                                    "OpenSSL/99.0.0", "GnuTLS/3.7.9 (OpenSSL/3.0.17)"}) {
        const auto message = "libcurl uses \"" + unfit + "\" for TLS, but this module needs " + own + "x";
        EXPECT_EQ(platform::faultOfTlsLibrary(unfit), (platform::URLError{secureConnectionFailed, message}));
    }
}

} // namespace quillet::testing
