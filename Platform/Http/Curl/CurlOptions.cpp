#include "Platform/Http/Curl/CurlOptions.hpp"

#include "Platform/Http/HTTPSyntax.hpp"

namespace quillet::platform {

void CurlOptions::setTransport(std::chrono::milliseconds connectTimeout) {
    set(CURLOPT_PROTOCOLS_STR, "https");
    // With HTTP/2 a server may refuse a stream after receiving it, and libcurl then repeats the request by
    // itself.
    set(CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
    set(CURLOPT_FOLLOWLOCATION, 0L);
    set(CURLOPT_PATH_AS_IS, 1L);
    set(CURLOPT_DISALLOW_USERNAME_IN_URL, 1L);
    set(CURLOPT_HTTP_CONTENT_DECODING, 0L);
    set(CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
    set(CURLOPT_BUFFERSIZE, 128L << 10);
    set(CURLOPT_NOSIGNAL, 1L);
    // Where a name has several addresses, each but the last gets half of the time that is left.
    set(CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(connectTimeout.count()));
    // A name lookup that hangs is abandoned when its call ends; otherwise it would block the session.
    set(CURLOPT_QUICK_EXIT, 1L);
}

void CurlOptions::setTrust(const std::string& caBundleFile) {
    set(CURLOPT_SSL_VERIFYPEER, 1L);
    set(CURLOPT_SSL_VERIFYHOST, 2L);
    set(CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_2));
    // libcurl 7.88 frees a TLS session twice if it has no memory to cache it. Few sessions would be resumed
    // anyway, because GET connections are kept open.
    set(CURLOPT_SSL_SESSIONID_CACHE, 0L);
    // A certificate store that was loaded while memory was short may lack keys, and libcurl would cache it
    // for a day.
    set(CURLOPT_CA_CACHE_TIMEOUT, 0L);
    if (!caBundleFile.empty()) {
        set(CURLOPT_CAINFO, caBundleFile.c_str());
        // Otherwise the system's certificate folder would be trusted as well.
        set(CURLOPT_CAPATH, static_cast<const char*>(nullptr));
    }
}

void CurlOptions::setRoute(const HostMapping* mapping, CurlList& connectTo) {
    if (!mapping) {
        return;
    }
    const bool isIPv6 = mapping->address.contains(':');
    const std::string address = isIPv6 ? "[" + mapping->address + "]" : mapping->address;
    append(connectTo, "::" + address + ":" + std::to_string(mapping->port));
    set(CURLOPT_CONNECT_TO, connectTo.get());
    set(CURLOPT_PROXY, "");
}

void CurlOptions::setRequest(const URLRequest& request, CurlList& headers) {
    const std::string method = request.httpMethod.value_or("GET");
    if (!isHTTPToken(method)) {
        failure_ = CURLE_BAD_FUNCTION_ARGUMENT;
        return;
    }
    set(CURLOPT_URL, request.url.absoluteString().c_str());
    if (request.httpBody || method == "POST" || method == "PUT" || method == "PATCH") {
        const std::string_view body = request.httpBody ? *request.httpBody : std::string_view();
        set(CURLOPT_POST, 1L);
        set(CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body.size()));
        set(CURLOPT_POSTFIELDS, body.empty() ? "" : body.data());
    } else if (method == "HEAD") {
        set(CURLOPT_NOBODY, 1L);
    }
    set(CURLOPT_CUSTOMREQUEST, method.c_str());
    if (method != "GET" && method != "HEAD") {
        // If a reused connection turns out to be closed, libcurl sends the request again, even if the server
        // has already received it.
        set(CURLOPT_FRESH_CONNECT, 1L);
    }
    setHeaders(request, headers);
}

void CurlOptions::setHeaders(const URLRequest& request, CurlList& headers) {
    append(headers, "Accept-Encoding: gzip");
    for (const auto& [name, value] : request.headerFields.all()) {
        const bool isBlank = value.find_first_not_of(" \t") == std::string::npos;
        // "Name:" would remove the header; "Name;" sends it with an empty value.
        append(headers, isBlank ? name + ";" : name + ": " + value);
    }
    // Headers that libcurl would add. With "Expect" it may send the request again.
    for (const char* const name : {"Accept", "Content-Type", "Expect"}) {
        if (!request.headerFields.value(name)) {
            append(headers, std::string(name) + ":");
        }
    }
    set(CURLOPT_HTTPHEADER, headers.get());
}

void CurlOptions::append(CurlList& list, const std::string& text) {
    if (curl_slist* const longer = curl_slist_append(list.get(), text.c_str())) {
        static_cast<void>(list.release());
        list.reset(longer);
    } else if (failure_ == CURLE_OK) {
        failure_ = CURLE_OUT_OF_MEMORY;
    }
}

} // namespace quillet::platform
