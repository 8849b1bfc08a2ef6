#include "Gateway/Requests.hpp"

#include <array>

#include <openssl/evp.h>
#include <openssl/hmac.h>

namespace quillet::gateway {

namespace {

std::string base64Url(std::string_view bytes) {
    std::string text((bytes.size() + 2) / 3 * 4 + 1, '\0');
    EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()),
                    reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<int>(bytes.size()));
    for (char& letter : text) {
        letter = letter == '+' ? '-' : letter == '/' ? '_' : letter;
    }
    return text.substr(0, text.find_first_of(std::string_view("=\0", 2)));
}

Request request(const std::string& method, const std::string& target) {
    return {.method = method,
            .target = target,
            .headers = {{"Host", std::string(builtInIdentity().hosts[2])}, {"Consultant-Token", goodToken()}},
            .body = {}};
}

std::string pathOf(std::uint64_t consultant, const std::string& country) {
    return "/quillet-bff/consultants/" + country + "/" + std::to_string(consultant) + "/sell-out-carts";
}

} // namespace

std::string signedToken(const std::string& header, const std::string& payload, std::string_view secret) {
    const auto content = base64Url(header) + "." + base64Url(payload);
    std::array<unsigned char, 32> code{};
    HMAC(EVP_sha256(), secret.data(), static_cast<int>(secret.size()),
         reinterpret_cast<const unsigned char*>(content.data()), content.size(), code.data(), nullptr);
    return content + "." + base64Url({reinterpret_cast<const char*>(code.data()), code.size()});
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
    return with(request("GET", pathOf(consultant, country) + "?status=OPEN"), "Accept", "application/json");
}

Request checkoutRequest(std::uint64_t consultant, const std::string& country) {
    const auto made = request("POST", pathOf(consultant, country) + "/checkout");
    return with(with(made, "Accept", "application/json"), "Authorization-Provider", "sales-app");
}

std::string cartOf(std::uint64_t consultant) {
    const auto number = std::to_string(consultant);
    return consultant == 41052 ? "7f3c9a10-52e1-4d0b-9c77-1f0a6b2e84d3"
                               : number + "a00-52e1-4d0b-9c77-1f0a6b2e84" + number.substr(3);
}

Request with(Request request, const std::string& part, const std::optional<std::string>& value) {
    if (part == ":method") {
        request.method = *value;
    } else if (part == ":target") {
        request.target = *value;
    } else if (part == ":body") {
        request.body = *value;
    } else {
        std::erase_if(request.headers, [&](const auto& header) { return header.first == part; });
        if (value) {
            request.headers.emplace_back(part, *value);
        }
    }
    return request;
}

} // namespace quillet::gateway
