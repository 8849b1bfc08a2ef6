#pragma once

#include "Gateway/RequestCheck.hpp"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include <openssl/evp.h>
#include <openssl/hmac.h>

namespace quillet::gateway {

inline std::string base64Url(std::string_view bytes) {
    std::string text((bytes.size() + 2) / 3 * 4 + 1, '\0');
    EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()),
                    reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<int>(bytes.size()));
    for (char& letter : text) {
        letter = letter == '+' ? '-' : letter == '/' ? '_' : letter;
    }
    return text.substr(0, text.find_first_of(std::string_view("=\0", 2)));
}

/// A token with these two segments before their encoding, signed with the secret.
inline std::string signedToken(const std::string& header, const std::string& payload,
                               std::string_view secret = builtInIdentity().secret) {
    const auto content = base64Url(header) + "." + base64Url(payload);
    std::array<unsigned char, 32> code{};
    HMAC(EVP_sha256(), secret.data(), static_cast<int>(secret.size()),
         reinterpret_cast<const unsigned char*>(content.data()), content.size(), code.data(), nullptr);
    return content + "." + base64Url({reinterpret_cast<const char*>(code.data()), code.size()});
}

inline std::string goodToken() {
    return signedToken(R"({"alg":"HS256","typ":"JWT"})", R"({"access_token":"abc\/x"})");
}

/// The request with another ":method", ":target", ":body" or header of exactly this spelling. Without a value
/// the header is left out.
inline Request with(Request request, const std::string& part, const std::optional<std::string>& value) {
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

inline Request request(const std::string& method, const std::string& target,
                       std::vector<std::pair<std::string, std::string>> headers) {
    headers.emplace_back("Host", builtInIdentity().hosts[2]);
    headers.emplace_back("Consultant-Token", goodToken());
    return {.method = method, .target = target, .headers = std::move(headers), .body = {}};
}

inline std::string pathOf(std::uint64_t consultant, const std::string& country) {
    return "/quillet-bff/consultants/" + country + "/" + std::to_string(consultant) + "/sell-out-carts";
}

/// The first of the three calls as the module makes them.
inline Request associateRequest(std::uint64_t consultant, const std::string& cart) {
    const auto made =
        request("PATCH", "/quillet-bff/sell-out-carts/" + cart,
                {{"Content-Type", "application/json"}, {"Authorization-Provider", "sales-app"}});
    return with(made, ":body", R"({"consultant":{"id":)" + std::to_string(consultant) + "}}");
}

inline Request openRequest(std::uint64_t consultant, const std::string& country = "CL") {
    return request("GET", pathOf(consultant, country) + "?status=OPEN", {{"Accept", "application/json"}});
}

inline Request checkoutRequest(std::uint64_t consultant, const std::string& country = "CL") {
    return request("POST", pathOf(consultant, country) + "/checkout",
                   {{"Accept", "application/json"}, {"Authorization-Provider", "sales-app"}});
}

/// The seeded cart of one of the consultants 41051 to 41068.
inline std::string cartOf(std::uint64_t consultant) {
    const auto number = std::to_string(consultant);
    return consultant == 41052 ? "7f3c9a10-52e1-4d0b-9c77-1f0a6b2e84d3"
                               : number + "a00-52e1-4d0b-9c77-1f0a6b2e84" + number.substr(3);
}

} // namespace quillet::gateway
