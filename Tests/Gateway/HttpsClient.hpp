#pragma once

#include "Gateway/Wire.hpp"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include <curl/curl.h>

namespace quillet::gateway {

/// The outcome of an exchange.
struct Exchange {
    CURLcode code = CURLE_OK;
    long status = 0;
    std::string body;
};

/// Sends requests over HTTPS to the host that their Host header names, at a port of 127.0.0.1, and trusts one
/// authority. Consecutive requests share a connection if the server keeps it open.
class HttpsClient {
public:
    HttpsClient(std::uint16_t port, const std::filesystem::path& authority) {
        add(mapping_, "::127.0.0.1:" + std::to_string(port));
        set(CURLOPT_CONNECT_TO, mapping_.get());
        set(CURLOPT_CAINFO, authority.c_str());
        set(CURLOPT_PATH_AS_IS, 1L);
        set(CURLOPT_PROXY, "");
        set(CURLOPT_NOSIGNAL, 1L);
        set(CURLOPT_WRITEFUNCTION, append);
    }

    Exchange send(const Request& request, std::chrono::milliseconds deadline = std::chrono::seconds(20)) {
        // These two keep curl from adding some by itself.
        List headers;
        add(headers, "Accept:");
        add(headers, "Content-Type:");
        for (const auto& [name, value] : request.headers) {
            if (!sameHeader(name, "Host")) {
                add(headers, name + ": " + value);
            }
        }
        Exchange exchange;
        set(CURLOPT_URL, ("https://" + std::string(request.header("Host")) + request.target).c_str());
        set(CURLOPT_HTTPHEADER, headers.get());
        set(CURLOPT_TIMEOUT_MS, static_cast<long>(deadline.count()));
        set(CURLOPT_WRITEDATA, &exchange.body);
        set(CURLOPT_HTTPGET, 1L);
        if (!request.body.empty()) {
            set(CURLOPT_POSTFIELDSIZE, static_cast<long>(request.body.size()));
            set(CURLOPT_POSTFIELDS, request.body.c_str());
        }
        set(CURLOPT_CUSTOMREQUEST, request.method.c_str());
        exchange.code = curl_easy_perform(curl_.get());
        curl_easy_getinfo(curl_.get(), CURLINFO_RESPONSE_CODE, &exchange.status);
        return exchange;
    }

    /// Connects, up to the end of the TLS handshake or without one, and says nothing.
    CURLcode connect(bool withTls) {
        set(CURLOPT_URL, withTls ? "https://localhost/" : "http://localhost/");
        set(CURLOPT_CONNECT_ONLY, 1L);
        return curl_easy_perform(curl_.get());
    }

private:
    struct Freer {
        void operator()(CURL* curl) const { curl_easy_cleanup(curl); }
        void operator()(curl_slist* list) const { curl_slist_free_all(list); }
    };
    using List = std::unique_ptr<curl_slist, Freer>;

    static std::size_t append(char* data, std::size_t size, std::size_t count, void* text) {
        static_cast<std::string*>(text)->append(data, size * count);
        return size * count;
    }
    static void add(List& list, const std::string& text) {
        list.reset(curl_slist_append(list.release(), text.c_str()));
    }
    void set(CURLoption option, auto value) { curl_easy_setopt(curl_.get(), option, value); }

    List mapping_;
    std::unique_ptr<CURL, Freer> curl_{curl_easy_init()};
};

} // namespace quillet::gateway
