#include "Gateway/HttpsClient.hpp"

namespace quillet::gateway {

namespace {

std::size_t append(char* data, std::size_t size, std::size_t count, void* text) {
    static_cast<std::string*>(text)->append(data, size * count);
    return size * count;
}

} // namespace

HttpsClient::HttpsClient(std::uint16_t port, const std::filesystem::path& authority) {
    add(mapping_, "::127.0.0.1:" + std::to_string(port));
    curl_easy_setopt(curl_.get(), CURLOPT_CONNECT_TO, mapping_.get());
    curl_easy_setopt(curl_.get(), CURLOPT_CAINFO, authority.c_str());
    curl_easy_setopt(curl_.get(), CURLOPT_PATH_AS_IS, 1L);
    curl_easy_setopt(curl_.get(), CURLOPT_PROXY, "");
    curl_easy_setopt(curl_.get(), CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl_.get(), CURLOPT_WRITEFUNCTION, append);
}

Exchange HttpsClient::send(const Request& request, std::chrono::milliseconds deadline) {
    auto* const curl = curl_.get();
    // These two are kept from adding what curl would add by itself.
    List headers;
    add(headers, "Accept:");
    add(headers, "Content-Type:");
    for (const auto& [name, value] : request.headers) {
        if (!sameHeader(name, "Host")) {
            add(headers, name + ": " + value);
        }
    }
    Exchange exchange;
    const auto url = "https://" + std::string(request.header("Host")) + request.target;
    curl_easy_setopt(curl, CURLOPT_URL, url.c_str());
    curl_easy_setopt(curl, CURLOPT_HTTPHEADER, headers.get());
    curl_easy_setopt(curl, CURLOPT_TIMEOUT_MS, static_cast<long>(deadline.count()));
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &exchange.body);
    curl_easy_setopt(curl, CURLOPT_HTTPGET, 1L);
    if (!request.body.empty()) {
        curl_easy_setopt(curl, CURLOPT_POSTFIELDSIZE, static_cast<long>(request.body.size()));
        curl_easy_setopt(curl, CURLOPT_POSTFIELDS, request.body.c_str());
    }
    curl_easy_setopt(curl, CURLOPT_CUSTOMREQUEST, request.method.c_str());
    exchange.code = curl_easy_perform(curl);
    curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &exchange.status);
    return exchange;
}

CURLcode HttpsClient::connect(bool withTls) {
    curl_easy_setopt(curl_.get(), CURLOPT_URL, withTls ? "https://localhost/" : "http://localhost/");
    curl_easy_setopt(curl_.get(), CURLOPT_CONNECT_ONLY, 1L);
    return curl_easy_perform(curl_.get());
}

void HttpsClient::add(List& list, const std::string& text) {
    list.reset(curl_slist_append(list.release(), text.c_str()));
}

} // namespace quillet::gateway
