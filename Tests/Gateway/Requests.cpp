#include "Gateway/Requests.hpp"

#include <array>

#include <openssl/evp.h>
#include <openssl/hmac.h>

namespace quillet::gateway {

namespace {

std::string base64Url(std::string_view bytes) {
    std::string text((bytes.size() + 2) / 3 * 4 + 1, '\0');
    const int size =
        EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()),
                        reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<int>(bytes.size()));
    text.resize(static_cast<std::size_t>(size));
    for (char& letter : text) {
        letter = letter == '+' ? '-' : letter == '/' ? '_' : letter;
    }
    std::erase(text, '=');
    return text;
}

Request request(const std::string& method, const std::string& target) {
    return {.method = method,
            .target = target,
            .headers = {{"Host", std::string(builtInIdentity().hosts[2])}, {"Consultant-Token", goodToken()}},
            .body = {}};
}

} // namespace

std::string signedToken(const std::string& header, const std::string& payload, std::string_view secret) {
    const auto content = base64Url(header) + "." + base64Url(payload);
    std::array<char, EVP_MAX_MD_SIZE> code{};
    unsigned int size = 0;
    HMAC(EVP_sha256(), secret.data(), static_cast<int>(secret.size()),
         reinterpret_cast<const unsigned char*>(content.data()), content.size(),
         reinterpret_cast<unsigned char*>(code.data()), &size);
    return content + "." + base64Url({code.data(), size});
}

std::string goodToken() {
    return signedToken(R"({"alg":"HS256","typ":"JWT"})", R"({"access_token":"abc\/x"})");
}

Request associateRequest(std::uint64_t consultant, const std::string& cart) {
    auto made = request("PATCH", "/quillet-bff/sell-out-carts/" + cart);
    made.headers.emplace_back("Content-Type", "application/json");
    made.headers.emplace_back("Authorization-Provider", "sales-app");
    made.body = R"({"consultant":{"id":)" + std::to_string(consultant) + "}}";
    return made;
}

Request openRequest(std::uint64_t consultant, const std::string& country) {
    auto made = request("GET", "/quillet-bff/consultants/" + country + "/" + std::to_string(consultant) +
                                   "/sell-out-carts?status=OPEN");
    made.headers.emplace_back("Accept", "application/json");
    return made;
}

Request checkoutRequest(std::uint64_t consultant, const std::string& country) {
    auto made = request("POST", "/quillet-bff/consultants/" + country + "/" + std::to_string(consultant) +
                                    "/sell-out-carts/checkout");
    made.headers.emplace_back("Accept", "application/json");
    made.headers.emplace_back("Authorization-Provider", "sales-app");
    return made;
}

std::string cartOf(std::uint64_t consultant) {
    if (consultant == 41052) {
        return "7f3c9a10-52e1-4d0b-9c77-1f0a6b2e84d3";
    }
    const auto number = std::to_string(consultant);
    return number + "a00-52e1-4d0b-9c77-1f0a6b2e84" + number.substr(3);
}

void setHeader(Request& request, const std::string& name, const std::string& value) {
    removeHeader(request, name);
    request.headers.emplace_back(name, value);
}

void removeHeader(Request& request, const std::string& name) {
    std::erase_if(request.headers, [&](const auto& header) { return header.first == name; });
}

} // namespace quillet::gateway
