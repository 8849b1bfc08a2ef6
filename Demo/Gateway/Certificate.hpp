#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include <openssl/evp.h>
#include <openssl/x509.h>

namespace quillet::gateway {

template <auto free>
struct Freer {
    template <class Handle>
    void operator()(Handle* handle) const {
        free(handle);
    }
};
using Key = std::unique_ptr<EVP_PKEY, Freer<EVP_PKEY_free>>;
using Certificate = std::unique_ptr<X509, Freer<X509_free>>;

/// A private key and the certificate of its public half.
struct Credentials {
    Key key;
    Certificate certificate;
};

/// Makes a self-signed certificate authority: EC P-256, valid for ten years. Throws `std::runtime_error` if
/// OpenSSL fails.
[[nodiscard]] Credentials makeAuthority();

/// Makes a server's certificate for the given names and 127.0.0.1, signed by the authority. Throws as above.
[[nodiscard]] Credentials makeServer(const Credentials& authority, std::span<const std::string_view> names);

} // namespace quillet::gateway
