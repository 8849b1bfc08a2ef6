#pragma once

#include <curl/curl.h>

#include <memory>

namespace quillet::platform {

/// What libcurl does not tell of a connection's TLS. Touched on the session's thread only; kept alive by the
/// connection and by the transfers that look at it.
struct TlsState {
    /// TLS came to its own end, and was not merely cut off. libcurl takes the one for the other, and with it,
    /// where nothing announces a body's length, part of a body for the whole.
    bool isEndedProperly = false;
    /// The handshake failed over the server's certificate. libcurl calls it that only where no other part of
    /// OpenSSL complained first, as it does about a signature that is not the authority's.
    bool isCertificateRefused = false;

    /// Makes `state` that of the connection that is about to be made with the context, an SSL_CTX. To be
    /// called within CURLOPT_SSL_CTX_FUNCTION, whose result it gives.
    [[nodiscard]] static CURLcode watch(void* tlsContext, const std::shared_ptr<TlsState>& state) noexcept;

    /// The state of the connection that the transfer is using, which may be older than the transfer; null if
    /// it uses none. To be asked while the transfer runs.
    [[nodiscard]] static std::shared_ptr<const TlsState> of(CURL* easy);
};

} // namespace quillet::platform
