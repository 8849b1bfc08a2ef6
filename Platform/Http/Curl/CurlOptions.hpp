#pragma once

#include "Quillet/Platform/URLRequest.hpp"
#include "Quillet/Platform/URLSessionConfiguration.hpp"

#include <curl/curl.h>

#include <chrono>
#include <memory>

namespace quillet::platform {

struct CurlListEnd {
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};
using CurlList = std::unique_ptr<curl_slist, CurlListEnd>;

/// Sets libcurl's options for one exchange. Keeps the first failure: an exchange with a missing option, such
/// as certificate verification, must not be sent.
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

    /// Options of every exchange, and the time-out for connecting.
    void setTransport(std::chrono::milliseconds connectTimeout);
    /// The trusted certificate authorities; an empty file name means the system's.
    void setTrust(const std::string& caBundleFile);
    /// The address to connect to. libcurl keeps a pointer to `connectTo`.
    void setRoute(const HostMapping* mapping, CurlList& connectTo);
    /// The request. libcurl keeps pointers to `request` and `headers`.
    void setRequest(const URLRequest& request, CurlList& headers);

    [[nodiscard]] CURLcode failure() const { return failure_; }

private:
    void append(CurlList& list, const std::string& text);
    void setHeaders(const URLRequest& request, CurlList& headers);

    CURL* easy_;
    CURLcode failure_;
};

} // namespace quillet::platform
