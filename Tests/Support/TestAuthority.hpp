#pragma once

#include <openssl/ssl.h>

#include <memory>
#include <string>

namespace quillet::testing {

using KeyPointer = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;
using CertificatePointer = std::unique_ptr<X509, decltype(&X509_free)>;
using ContextPointer = std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)>;

/// A new certificate authority. Its certificate is in a temporary file while it exists.
class TestAuthority {
public:
    TestAuthority();
    ~TestAuthority();
    TestAuthority(const TestAuthority&) = delete;
    TestAuthority& operator=(const TestAuthority&) = delete;

    [[nodiscard]] const std::string& bundleFile() const { return bundleFile_; }

    /// A server's TLS context with a certificate for the host.
    [[nodiscard]] ContextPointer serverContext(const std::string& host) const;

private:
    KeyPointer key_;
    CertificatePointer certificate_;
    std::string bundleFile_;
};

} // namespace quillet::testing
