#include "Platform/Http/Curl/CurlLibrary.hpp"

#include "Platform/Http/Process/OpenSsl.hpp"
#include "Platform/Http/Process/ProcessEnd.hpp"

#include <curl/curl.h>
#include <openssl/opensslv.h>

#include <algorithm>
#include <mutex>
#include <string>

namespace quillet::platform {

std::optional<URLError> initialiseCurl() {
    static std::mutex mutex;
    static bool isReady = false;
    const std::lock_guard lock(mutex);
    if (!isReady) {
        keepOpenSslToTheEnd();
        if (const CURLcode code = curl_global_init(CURL_GLOBAL_DEFAULT); code != CURLE_OK) {
            return URLError::of(URLError::Code::unknown, curl_easy_strerror(code));
        }
        ProcessEnd::watch();
        isReady = true;
    }
    const char* const sslVersion = curl_version_info(CURLVERSION_NOW)->ssl_version;
    return faultOfTlsLibrary(sslVersion ? sslVersion : "");
}

std::optional<URLError> faultOfTlsLibrary(std::string_view sslVersion) {
    const std::string needed = "OpenSSL/" + std::to_string(OPENSSL_VERSION_MAJOR) + ".";
    for (std::size_t start = 0; start < sslVersion.size();) {
        const std::size_t end = std::min(sslVersion.find(' ', start), sslVersion.size());
        if (sslVersion.substr(start, end - start).starts_with(needed)) {
            return std::nullopt;
        }
        start = end + 1;
    }
    return URLError{URLError::Code::secureConnectionFailed, "libcurl uses \"" + std::string(sslVersion) +
                                                                "\" for TLS, but this module needs " +
                                                                needed + "x"};
}

} // namespace quillet::platform
