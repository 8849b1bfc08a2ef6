#include "Support/TestAuthority.hpp"

#include <openssl/pem.h>
#include <openssl/x509v3.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace quillet::testing {

namespace {

// The server's certificate has been changed, and so is signed anew.
ContextPointer makeContext(const gateway::Credentials& server, EVP_PKEY* issuerKey) {
    ContextPointer context(SSL_CTX_new(TLS_server_method()));
    X509_sign(server.certificate.get(), issuerKey, EVP_sha256());
    SSL_CTX_use_certificate(context.get(), server.certificate.get());
    SSL_CTX_use_PrivateKey(context.get(), server.key.get());
    return context;
}

} // namespace

TestAuthority::TestAuthority() {
    bundleFile_ = std::filesystem::temp_directory_path() / "quillet-authority-XXXXXX";
    FILE* const file = fdopen(mkstemp(bundleFile_.data()), "w");
    PEM_write_X509(file, authority_.certificate.get());
    std::fclose(file);
}

TestAuthority::~TestAuthority() {
    std::remove(bundleFile_.c_str());
}

ContextPointer TestAuthority::serverContext(std::string_view host, std::chrono::seconds from,
                                            std::chrono::seconds until) const {
    const auto server = gateway::makeServer(authority_, {&host, 1});
    X509_gmtime_adj(X509_getm_notBefore(server.certificate.get()), static_cast<long>(from.count()));
    X509_gmtime_adj(X509_getm_notAfter(server.certificate.get()), static_cast<long>(until.count()));
    return makeContext(server, authority_.key.get());
}

ContextPointer TestAuthority::selfSignedContext(std::string_view host) {
    const auto server = gateway::makeServer(gateway::makeAuthority(), {&host, 1});
    auto* const itself = server.certificate.get();
    X509_set_issuer_name(itself, X509_get_subject_name(itself));
    const int issuersKey = X509_get_ext_by_NID(itself, NID_authority_key_identifier, -1);
    X509_EXTENSION_free(X509_delete_ext(itself, issuersKey));
    return makeContext(server, server.key.get());
}

} // namespace quillet::testing
