#include "Platform/Http/Curl/TlsState.hpp"

#include <openssl/ssl.h>

#include <mutex>
#include <new>

namespace quillet::platform {

namespace {

using Shared = std::shared_ptr<TlsState>;

void release(void*, void* shared, CRYPTO_EX_DATA*, int, long, void*) {
    delete static_cast<Shared*>(shared);
}

// Index of our data in an SSL_CTX, of which libcurl makes one for each connection. Negative if it could not
// be allocated; the next caller tries again.
int dataIndex() {
    static std::mutex mutex;
    static int index = -1;
    const std::lock_guard lock(mutex);
    if (index < 0) {
        index = SSL_CTX_get_ex_new_index(0, nullptr, nullptr, nullptr, &release);
    }
    return index;
}

Shared* sharedOf(const SSL* tls) {
    return static_cast<Shared*>(SSL_CTX_get_ex_data(SSL_get_SSL_CTX(tls), dataIndex()));
}

void noteAlert(const SSL* tls, int event, int alert) {
    const auto* const shared = sharedOf(tls);
    if (shared && event == SSL_CB_READ_ALERT && (alert & 0xff) == SSL_AD_CLOSE_NOTIFY) {
        (*shared)->isEndedProperly = true;
    }
    if (shared && event == SSL_CB_WRITE_ALERT && SSL_get_verify_result(tls) != X509_V_OK) {
        (*shared)->isCertificateRefused = true;
    }
}

} // namespace

CURLcode TlsState::watch(void* tlsContext, const Shared& state) noexcept {
    auto* const context = static_cast<SSL_CTX*>(tlsContext);
    std::unique_ptr<Shared> shared(new (std::nothrow) Shared(state));
    if (!shared || !SSL_CTX_set_ex_data(context, dataIndex(), shared.get())) {
        return CURLE_OUT_OF_MEMORY;
    }
    static_cast<void>(shared.release());
    SSL_CTX_set_info_callback(context, &noteAlert);
    return CURLE_OK;
}

std::shared_ptr<const TlsState> TlsState::of(CURL* easy) {
    curl_tlssessioninfo* session = nullptr;
    if (curl_easy_getinfo(easy, CURLINFO_TLS_SSL_PTR, &session) != CURLE_OK || !session ||
        !session->internals) {
        return nullptr;
    }
    const auto* const shared = sharedOf(static_cast<const SSL*>(session->internals));
    return shared ? *shared : nullptr;
}

} // namespace quillet::platform
