#pragma once

#include "Gateway/Json.hpp"
#include "Gateway/RequestCheck.hpp"
#include "Quillet/Authorization.hpp"

#include <cstdint>
#include <optional>
#include <string>

namespace quillet::gateway {

/// As the module makes it, so that the two are known to fit.
inline std::string goodToken() {
    return authorize("abc/x", "sales-app", std::string(builtInIdentity().secret))->jwt;
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
                       std::vector<std::pair<std::string, std::string>> headers,
                       const std::string& body = {}) {
    headers.emplace_back("Host", builtInIdentity().hosts[2]);
    headers.emplace_back("Consultant-Token", goodToken());
    return {.method = method, .target = target, .headers = std::move(headers), .body = body};
}

/// The first of the three calls as the module makes them.
inline Request associateRequest(std::uint64_t consultant, const std::string& cart) {
    return request("PATCH", "/quillet-bff/sell-out-carts/" + cart,
                   {{"Content-Type", "application/json"}, {"Authorization-Provider", "sales-app"}},
                   R"({"consultant":{"id":)" + std::to_string(consultant) + "}}");
}

inline std::string cartsOf(std::uint64_t consultant, const std::string& country) {
    return "/quillet-bff/consultants/" + country + "/" + std::to_string(consultant) + "/sell-out-carts";
}

inline Request openRequest(std::uint64_t consultant, const std::string& country = "CL") {
    return request("GET", cartsOf(consultant, country) + "?status=OPEN", {{"Accept", "application/json"}});
}

inline Request checkoutRequest(std::uint64_t consultant, const std::string& country = "CL") {
    return request("POST", cartsOf(consultant, country) + "/checkout",
                   {{"Accept", "application/json"}, {"Authorization-Provider", "sales-app"}});
}

/// The seeded cart of one of the consultants 41051 to 41068.
inline std::string cartOf(std::uint64_t consultant) {
    const auto number = std::to_string(consultant);
    return consultant == 41052 ? "7f3c9a10-52e1-4d0b-9c77-1f0a6b2e84d3"
                               : number + "a00-52e1-4d0b-9c77-1f0a6b2e84" + number.substr(3);
}

/// An answer's status, what it says of a failure, a verdict or a cart, and of each product and open cart.
inline std::string told(long status, const std::string& answer) {
    const auto body = Json::parse(answer, nullptr, false);
    auto text = std::to_string(status);
    for (const char* const place : {"/error/message", "/message", "/cart/status"}) {
        const auto said = body.value(Json::json_pointer(place), std::string());
        text += (said.empty() ? "" : " ") + said;
    }
    for (const auto& product : body.value("products", Json())) {
        text += ", " + product["productCode"].dump() + " " + product["status"].get<std::string>();
    }
    for (const auto& cart : body.value("carts", Json())) {
        text += ", " + cart["cartNumber"].dump();
    }
    return text;
}

} // namespace quillet::gateway
