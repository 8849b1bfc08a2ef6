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
    HttpsClient(std::uint16_t port, const std::filesystem::path& authority);

    Exchange send(const Request& request, std::chrono::milliseconds deadline = std::chrono::seconds(20));

    /// Connects, up to the end of the TLS handshake or without one, and says nothing.
    CURLcode connect(bool withTls);

private:
    struct Freer {
        void operator()(CURL* curl) const { curl_easy_cleanup(curl); }
        void operator()(curl_slist* list) const { curl_slist_free_all(list); }
    };
    using List = std::unique_ptr<curl_slist, Freer>;
    static void add(List& list, const std::string& text);

    List mapping_;
    std::unique_ptr<CURL, Freer> curl_{curl_easy_init()};
};

} // namespace quillet::gateway
