#include "Gateway/Certificate.hpp"

#include <stdexcept>

#include <openssl/bn.h>
#include <openssl/ec.h>
#include <openssl/err.h>
#include <openssl/x509v3.h>

namespace quillet::gateway {

namespace {

constexpr int serialBits = 127;
constexpr long day = 24L * 60 * 60;

using Extension = std::unique_ptr<X509_EXTENSION, Freer<X509_EXTENSION_free>>;
using Number = std::unique_ptr<BIGNUM, Freer<BN_free>>;

void require(bool done) {
    if (!done) {
        throw std::runtime_error(std::string("OpenSSL: ") + ERR_error_string(ERR_get_error(), nullptr));
    }
}

Key makeKey() {
    Key key(EVP_EC_gen("P-256"));
    require(key != nullptr);
    return key;
}

void addExtension(X509* certificate, X509* issuer, int kind, const std::string& value) {
    X509V3_CTX context;
    X509V3_set_ctx(&context, issuer, certificate, nullptr, nullptr, 0);
    const Extension extension(X509V3_EXT_conf_nid(nullptr, &context, kind, value.c_str()));
    require(extension && X509_add_ext(certificate, extension.get(), -1) == 1);
}

// A certificate without its extensions and signature. It is valid from one day ago, for clients whose clock
// is slow.
Certificate begin(EVP_PKEY* key, const std::string& commonName, long days) {
    Certificate certificate(X509_new());
    const Number serial(BN_new());
    require(certificate && serial &&
            BN_rand(serial.get(), serialBits, BN_RAND_TOP_ANY, BN_RAND_BOTTOM_ANY) == 1);
    require(X509_set_version(certificate.get(), X509_VERSION_3) == 1);
    require(BN_to_ASN1_INTEGER(serial.get(), X509_get_serialNumber(certificate.get())) != nullptr);
    require(X509_gmtime_adj(X509_getm_notBefore(certificate.get()), -day) != nullptr);
    require(X509_gmtime_adj(X509_getm_notAfter(certificate.get()), days * day) != nullptr);
    require(X509_set_pubkey(certificate.get(), key) == 1);
    require(X509_NAME_add_entry_by_txt(X509_get_subject_name(certificate.get()), "CN", MBSTRING_UTF8,
                                       reinterpret_cast<const unsigned char*>(commonName.c_str()), -1, -1,
                                       0) == 1);
    return certificate;
}

} // namespace

Credentials makeAuthority() {
    auto key = makeKey();
    auto certificate = begin(key.get(), "Quillet gateway, local authority", 3650);
    auto* const self = certificate.get();
    require(X509_set_issuer_name(self, X509_get_subject_name(self)) == 1);
    addExtension(self, self, NID_basic_constraints, "critical,CA:TRUE,pathlen:0");
    addExtension(self, self, NID_key_usage, "critical,keyCertSign,cRLSign");
    addExtension(self, self, NID_subject_key_identifier, "hash");
    require(X509_sign(self, key.get(), EVP_sha256()) > 0);
    return {std::move(key), std::move(certificate)};
}

Credentials makeServer(const Credentials& authority, std::span<const std::string_view> names) {
    auto key = makeKey();
    auto certificate = begin(key.get(), "Quillet gateway", 397);
    auto* const issuer = authority.certificate.get();
    std::string alternatives = "IP:127.0.0.1";
    for (const auto name : names) {
        alternatives.append(",DNS:").append(name);
    }
    require(X509_set_issuer_name(certificate.get(), X509_get_subject_name(issuer)) == 1);
    addExtension(certificate.get(), issuer, NID_basic_constraints, "critical,CA:FALSE");
    addExtension(certificate.get(), issuer, NID_key_usage, "critical,digitalSignature");
    addExtension(certificate.get(), issuer, NID_ext_key_usage, "serverAuth");
    addExtension(certificate.get(), issuer, NID_subject_alt_name, alternatives);
    addExtension(certificate.get(), issuer, NID_subject_key_identifier, "hash");
    addExtension(certificate.get(), issuer, NID_authority_key_identifier, "keyid:always");
    require(X509_sign(certificate.get(), authority.key.get(), EVP_sha256()) > 0);
    return {std::move(key), std::move(certificate)};
}

} // namespace quillet::gateway
