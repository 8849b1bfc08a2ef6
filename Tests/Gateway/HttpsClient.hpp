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
    HttpsClient(std::uint16_t port, std::filesystem::path authority);

    Exchange send(const Request& request, std::chrono::milliseconds deadline = std::chrono::seconds(20));

private:
    struct Cleaner {
        void operator()(CURL* curl) const { curl_easy_cleanup(curl); }
    };
    std::unique_ptr<CURL, Cleaner> curl_{curl_easy_init()};
    std::uint16_t port_;
    std::filesystem::path authority_;
};

} // namespace quillet::gateway
