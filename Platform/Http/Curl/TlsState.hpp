#pragma once

#include <curl/curl.h>

#include <memory>

namespace quillet::platform {

/// State of a connection's TLS that libcurl does not report. Used on the session's thread only. Shared by the
/// connection and by the transfers that use it.
struct TlsState {
    /// The peer sent close_notify. libcurl treats a truncated connection as a clean close, so without a
    /// Content-Length a partial body would look complete.
    bool isEndedProperly = false;
    /// The handshake failed because of the server's certificate. libcurl reports
    /// CURLE_PEER_FAILED_VERIFICATION only if no other part of OpenSSL has queued an error first, as it does
    /// for a wrong signature.
    bool isCertificateRefused = false;

    /// Attaches `state` to the connection that will be made with the context, an SSL_CTX. Call it from
    /// CURLOPT_SSL_CTX_FUNCTION and return its result.
    [[nodiscard]] static CURLcode watch(void* tlsContext, const std::shared_ptr<TlsState>& state) noexcept;

    /// The state of the transfer's connection, which may be older than the transfer; null if it has none.
    /// Valid while the transfer runs.
    [[nodiscard]] static std::shared_ptr<const TlsState> of(CURL* easy);
};

} // namespace quillet::platform
