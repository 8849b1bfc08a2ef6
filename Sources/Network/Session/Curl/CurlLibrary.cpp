#include "Network/Session/Curl/CurlLibrary.hpp"

#include "Network/Support/OpenSsl.hpp"
#include "Network/Support/ProcessEnd.hpp"

#include <curl/curl.h>

#include <mutex>

namespace quillet {

void initialiseCurl() {
    static std::once_flag once;
    std::call_once(once, [] {
        keepOpenSslToTheEnd();
        curl_global_init(CURL_GLOBAL_DEFAULT);
        ProcessEnd::watch();
    });
}

} // namespace quillet
