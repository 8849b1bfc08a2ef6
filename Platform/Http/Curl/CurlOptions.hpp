#pragma once

#include "Platform/Http/URLRequest.hpp"
#include "Platform/Http/URLSessionConfiguration.hpp"

#include <curl/curl.h>

#include <chrono>
#include <memory>

namespace quillet::platform {

struct CurlListEnd {
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};
using CurlList = std::unique_ptr<curl_slist, CurlListEnd>;

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

    /// What holds for every exchange, and how long connecting may take.
    void setTransport(std::chrono::milliseconds connectTimeout);
    /// Whom to trust; an empty file name for the system's authorities.
    void setTrust(const std::string& caBundleFile);
    /// Where to connect to. libcurl goes on reading `connectTo`.
    void setRoute(const HostMapping* mapping, CurlList& connectTo);
    /// What to send. libcurl goes on reading `request` and `headers`.
    void setRequest(const URLRequest& request, CurlList& headers);

    [[nodiscard]] CURLcode failure() const { return failure_; }

private:
    void append(CurlList& list, const std::string& text);
    void setHeaders(const URLRequest& request, CurlList& headers);

    CURL* easy_;
    CURLcode failure_;
};

} // namespace quillet::platform
