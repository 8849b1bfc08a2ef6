#pragma once

#include "Gateway/Certificate.hpp"

#include <openssl/ssl.h>

#include <chrono>
#include <memory>
#include <string>

namespace quillet::testing {

using ContextPointer = std::unique_ptr<SSL_CTX, gateway::Freer<SSL_CTX_free>>;

/// A new certificate authority. Its certificate is in a temporary file while it exists.
class TestAuthority {
public:
    TestAuthority();
    ~TestAuthority();
    TestAuthority(const TestAuthority&) = delete;
    TestAuthority& operator=(const TestAuthority&) = delete;

    [[nodiscard]] const std::string& bundleFile() const { return bundleFile_; }

    /// A server's TLS context with a certificate for the host, in force between two times from now on.
    [[nodiscard]] ContextPointer serverContext(std::string_view host,
                                               std::chrono::seconds from = -std::chrono::hours(1),
                                               std::chrono::seconds until = std::chrono::hours(1)) const;
    /// The same with a certificate that nobody else has signed.
    [[nodiscard]] static ContextPointer selfSignedContext(std::string_view host);

private:
    gateway::Credentials authority_ = gateway::makeAuthority();
    std::string bundleFile_;
};

} // namespace quillet::testing
