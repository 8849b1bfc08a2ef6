#include "Support/TestAuthority.hpp"

#include <openssl/pem.h>
#include <openssl/x509v3.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace quillet::testing {

namespace {

// Serial numbers must be unique.
long nextNumber() {
    static std::atomic<long> number = 0;
    return ++number;
}

KeyPointer makeKey() {
    return {EVP_EC_gen("P-256"), &EVP_PKEY_free};
}

CertificatePointer makeCertificate(EVP_PKEY* key, const std::string& name, const std::string& extension,
                                   int nid, X509* issuer, EVP_PKEY* issuerKey,
                                   std::chrono::seconds from = -std::chrono::hours(1),
                                   std::chrono::seconds until = std::chrono::hours(1)) {
    CertificatePointer certificate(X509_new(), &X509_free);
    X509_set_version(certificate.get(), 2);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), nextNumber());
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), static_cast<long>(from.count()));
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), static_cast<long>(until.count()));
    X509_set_pubkey(certificate.get(), key);
    X509_NAME_add_entry_by_txt(X509_get_subject_name(certificate.get()), "CN", MBSTRING_ASC,
                               reinterpret_cast<const unsigned char*>(name.c_str()), -1, -1, 0);
    X509_set_issuer_name(certificate.get(), X509_get_subject_name(issuer ? issuer : certificate.get()));
    X509_EXTENSION* const value = X509V3_EXT_conf_nid(nullptr, nullptr, nid, extension.c_str());
    X509_add_ext(certificate.get(), value, -1);
    X509_EXTENSION_free(value);
    X509_sign(certificate.get(), issuerKey, EVP_sha256());
    return certificate;
}

ContextPointer makeContext(EVP_PKEY* key, X509* certificate) {
    ContextPointer context(SSL_CTX_new(TLS_server_method()), &SSL_CTX_free);
    SSL_CTX_use_certificate(context.get(), certificate);
    SSL_CTX_use_PrivateKey(context.get(), key);
    return context;
}

} // namespace

TestAuthority::TestAuthority()
    : key_(makeKey()),
      certificate_(makeCertificate(key_.get(), "Test authority", "critical,CA:TRUE", NID_basic_constraints,
                                   nullptr, key_.get())) {
    bundleFile_ = std::filesystem::temp_directory_path() / "quillet-authority-XXXXXX";
    FILE* const file = fdopen(mkstemp(bundleFile_.data()), "w");
    PEM_write_X509(file, certificate_.get());
    std::fclose(file);
}

TestAuthority::~TestAuthority() {
    std::remove(bundleFile_.c_str());
}

ContextPointer TestAuthority::serverContext(const std::string& host, std::chrono::seconds from,
                                            std::chrono::seconds until) const {
    const auto key = makeKey();
    const auto certificate = makeCertificate(key.get(), host, "DNS:" + host, NID_subject_alt_name,
                                             certificate_.get(), key_.get(), from, until);
    return makeContext(key.get(), certificate.get());
}

ContextPointer TestAuthority::selfSignedContext(const std::string& host) {
    const auto key = makeKey();
    const auto certificate =
        makeCertificate(key.get(), host, "DNS:" + host, NID_subject_alt_name, nullptr, key.get());
    return makeContext(key.get(), certificate.get());
}

} // namespace quillet::testing
