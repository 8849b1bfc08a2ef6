#include "Gateway/HttpsClient.hpp"

namespace quillet::gateway {

namespace {

std::size_t append(char* data, std::size_t size, std::size_t count, void* text) {
    static_cast<std::string*>(text)->append(data, size * count);
    return size * count;
}

struct ListFreer {
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};
using List = std::unique_ptr<curl_slist, ListFreer>;

void add(List& list, const std::string& text) {
    list.reset(curl_slist_append(list.release(), text.c_str()));
}

} // namespace

HttpsClient::HttpsClient(std::uint16_t port, std::filesystem::path authority)
    : port_(port), authority_(std::move(authority)) {}

Exchange HttpsClient::send(const Request& request, std::chrono::milliseconds deadline) {
    auto* const curl = curl_.get();
    curl_easy_reset(curl);
    List headers;
    List mapping;
    add(mapping, "::127.0.0.1:" + std::to_string(port_));
    // By default curl adds an Accept header, and a Content-Type to a request with a body.
    for (const char* const name : {"Accept", "Content-Type"}) {
        if (request.count(name) == 0) {
            add(headers, std::string(name) + ":");
        }
    }
    for (const auto& [name, value] : request.headers) {
        if (!sameHeader(name, "Host")) {
            add(headers, name + ": " + value);
        }
    }

    Exchange exchange;
    const auto url = "https://" + std::string(request.header("Host")) + request.target;
    curl_easy_setopt(curl, CURLOPT_URL, url.c_str());
    curl_easy_setopt(curl, CURLOPT_PATH_AS_IS, 1L);
    curl_easy_setopt(curl, CURLOPT_PROXY, "");
    curl_easy_setopt(curl, CURLOPT_CONNECT_TO, mapping.get());
    curl_easy_setopt(curl, CURLOPT_CAINFO, authority_.c_str());
    curl_easy_setopt(curl, CURLOPT_HTTPHEADER, headers.get());
    curl_easy_setopt(curl, CURLOPT_TIMEOUT_MS, static_cast<long>(deadline.count()));
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, append);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &exchange.body);
    if (!request.body.empty()) {
        curl_easy_setopt(curl, CURLOPT_POSTFIELDSIZE, static_cast<long>(request.body.size()));
        curl_easy_setopt(curl, CURLOPT_POSTFIELDS, request.body.c_str());
    }
    curl_easy_setopt(curl, CURLOPT_CUSTOMREQUEST, request.method.c_str());
    exchange.code = curl_easy_perform(curl);
    curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &exchange.status);
    return exchange;
}

} // namespace quillet::gateway
