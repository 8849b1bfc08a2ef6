#pragma once

#include "Network/Request/URLRequest.hpp"
#include "Network/Session/URLSessionConfiguration.hpp"

#include <curl/curl.h>

namespace quillet {

/// Tells libcurl how to make one exchange. Remembers the first option that was refused: an exchange that
/// lacks one, verification above all, must not take place.
class CurlOptions {
public:
    /// `easy` may be null, which is a failure of its own.
    explicit CurlOptions(CURL* easy) : easy_(easy), failure_(easy ? CURLE_OK : CURLE_OUT_OF_MEMORY) {}

    template <typename Value>
    void set(CURLoption option, Value value) {
        if (failure_ == CURLE_OK) {
            failure_ = curl_easy_setopt(easy_, option, value);
        }
    }

    /// What holds for every exchange.
    void setTransport();
    /// Whom to trust; an empty file name for the system's authorities.
    void setTrust(const std::string& caBundleFile);
    /// Where to connect to. `connectTo` is the caller's to free.
    void setRoute(const HostMapping* mapping, curl_slist*& connectTo);
    /// What to send. `request` is not copied; `headers` is the caller's to free.
    void setRequest(const URLRequest& request, curl_slist*& headers);

    [[nodiscard]] CURLcode failure() const { return failure_; }

private:
    void append(curl_slist*& list, const std::string& text);
    void setHeaders(const URLRequest& request, curl_slist*& headers);

    CURL* easy_;
    CURLcode failure_;
};

} // namespace quillet
