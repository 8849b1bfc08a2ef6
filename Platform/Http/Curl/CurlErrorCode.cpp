#include "Platform/Http/Curl/CurlErrorCode.hpp"

namespace quillet::platform {

namespace {

// CURLE_TOO_LARGE, which libcurl has since 8.6.
constexpr int tooLarge = 100;

} // namespace

bool isFailureToConnect(CURLcode code) {
    return code == CURLE_COULDNT_RESOLVE_HOST || code == CURLE_COULDNT_RESOLVE_PROXY ||
           code == CURLE_COULDNT_CONNECT;
}

URLError::Code urlErrorCode(CURLcode code) {
    using enum URLError::Code;
    // Most of libcurl's codes are for protocols that are not used here.
    switch (static_cast<int>(code)) {
    case CURLE_URL_MALFORMAT:
        return badURL;
    case CURLE_OPERATION_TIMEDOUT:
        return timedOut;
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_RESOLVE_PROXY:
        return cannotFindHost;
    case CURLE_COULDNT_CONNECT:
    case CURLE_PROXY:
        return cannotConnectToHost;
    case CURLE_GOT_NOTHING:
    case CURLE_PARTIAL_FILE:
    case CURLE_RECV_ERROR:
    case CURLE_SEND_ERROR:
        return networkConnectionLost;
    case tooLarge:
        return dataLengthExceedsMaximum;
    // Only the transfer coding can be bad: libcurl does not decode the content coding.
    case CURLE_BAD_CONTENT_ENCODING:
    case CURLE_UNSUPPORTED_PROTOCOL:
    case CURLE_WEIRD_SERVER_REPLY:
        return cannotParseResponse;
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_ISSUER_ERROR:
    case CURLE_SSL_INVALIDCERTSTATUS:
        return serverCertificateUntrusted;
    case CURLE_SSL_CACERT_BADFILE:
        return cannotOpenFile;
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_CIPHER:
    case CURLE_SSL_CERTPROBLEM:
    case CURLE_SSL_CLIENTCERT:
        return secureConnectionFailed;
    }
    return unknown;
}

} // namespace quillet::platform
