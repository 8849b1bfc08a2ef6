#include "Gateway/Json.hpp"
#include "Gateway/Requests.hpp"
#include "Gateway/Token.hpp"

#include <gtest/gtest.h>

namespace quillet::gateway {

namespace {

void expectRefused(const Request& request, int status) {
    SCOPED_TRACE(request.method + " " + request.target);
    const auto checked = checkRequest(request, builtInIdentity());
    ASSERT_FALSE(checked);
    EXPECT_EQ(checked.error().status, status);
    const auto json = Json::parse(checked.error().body);
    EXPECT_EQ(json["statusCode"], status);
    EXPECT_EQ(json["path"], request.target);
    EXPECT_EQ(json["error"], reasonPhrase(status));
    EXPECT_FALSE(json["details"].get<std::string>().empty());
}

} // namespace

TEST(GatewayRequests, ThatAreWrongGetAClientErrorWithAllItsKeys) {
    const auto associate = associateRequest(41051, cartOf(41051));
    const auto open = openRequest(41051);
    const auto checkout = checkoutRequest(41051);
    const std::string consultants = "/quillet-bff/consultants/CL/";
    const std::tuple<int, Request, std::string, std::optional<std::string>> cases[] = {
        // What is not text is quoted as text.
        {421, open, "Host", "\xff\xfe"},
        {400, open, "Host", {}},
        {404, checkout, ":target", checkout.target + "/"},
        {400, associate, ":target", "/quillet-bff/sell-out-carts/a%2"},
        {400, associate, ":target", "/quillet-bff/sell-out-carts/%+1"},
        {405, associate, ":method", "patch"},
        {401, open, "Consultant-Token", {}},
        {400, open, "consultant-token", goodToken()},
        {403, checkout, "Authorization-Provider", {}},
        {403, associate, "Authorization-Provider", ""},
        {400, open, "Authorization-Provider", "sales-app"},
        {400, open, "X-Debug", "1"},
        {415, associate, "Content-Type", "application/x-www-form-urlencoded"},
        {415, checkout, "Content-Type", "application/json"},
        {406, checkout, "Accept", "*/*"},
        {400, open, ":target", consultants + "41051/sell-out-carts?status=open"},
        {400, open, ":target", consultants + "041051/sell-out-carts?status=OPEN"},
        {400, open, ":target", consultants + "18446744073709551616/sell-out-carts?status=OPEN"},
        {400, checkout, ":target", checkout.target + "?"},
        {400, checkout, ":body", "{}"},
        {400, associate, ":body", R"({"consultant":{"id":41051})"},
        {422, associate, ":body", R"({"consultant":{"id":"41051"}})"},
        {422, associate, ":body", R"({"consultant":{"id":41051.0}})"},
        {422, associate, ":body", R"({"consultant":{"id":41051},"cart":"x"})"},
        {422, associate, ":body", R"({"id":41051})"},
    };
    for (const auto& [status, good, part, value] : cases) {
        SCOPED_TRACE(part + " " + value.value_or("left out"));
        expectRefused(with(good, part, value), status);
    }
}

TEST(GatewayRequests, SteerToNoOtherResource) {
    const std::string carts = "/quillet-bff/sell-out-carts/";
    const std::string cart = cartOf(41051);
    const std::pair<std::string, int> targets[] = {
        {carts + "../sell-out-carts/" + cart, 400},
        {carts + "../consultants/CL/41051/sell-out-carts?status=OPEN", 400},
        {carts + "../consultants/CL/41051/sell-out-carts/checkout", 400},
        {carts + "x/%2e%2E/" + cart, 400},
        {carts + "x%2f..%2F" + cart, 400},
        {carts + "x\\..\\" + cart, 400},
        {carts + "./" + cart, 400},
        {carts + cart + "/..", 400},
        {"/quillet-bff/consultants/CL%2F..%2FCL/41051/sell-out-carts/checkout", 400},
        {"https://localhost" + carts + cart, 404},
        {"/" + carts + cart, 404},
        {"/Q" + carts.substr(2) + cart, 404},
    };
    for (const auto& [target, status] : targets) {
        for (const auto& request :
             {associateRequest(41051, ""), openRequest(41051), checkoutRequest(41051)}) {
            expectRefused(with(request, ":target", target), status);
        }
    }
    RecordProperty("cases", static_cast<int>(3 * std::size(targets)));
}

TEST(GatewayTokens, AreTakenOnlyAsTheyAreSigned) {
    // All were made with the openssl command, independently of the code under test, and signed with 527308.
    const std::string header = "eyJhbGciOiJIUzI1NiIsInR5cCI6IkpXVCJ9.";
    const std::string token =
        header + "eyJhY2Nlc3NfdG9rZW4iOiJhYmNcL3gifQ.LxwjqUO9VIOuiURxrZDCFmkvVp36uVHS1HtzDaM9vTg";
    const std::string badSignature =
        "The signature of Consultant-Token is not the HMAC-SHA256 of its first two segments.";
    const std::tuple<std::string, const char*, std::string> cases[] = {
        {token, "527308", "abc/x"},
        {header + "eyJhY2Nlc3NfdG9rZW4iOiIifQ.jFnVmRSvgVKRGNLzKGHS9NVTGBhtlLzVjXMrab71FnA", "527308", ""},
        {token, "000000", badSignature},
        {token.substr(0, token.size() - 3), "527308", badSignature},
        {token + "=", "527308",
         "A segment of Consultant-Token is not base64url without padding, or not a JSON object."},
        {token + ".x", "527308", "Consultant-Token is not three segments joined by points."},
        {"eyJhbGciOiJub25lIiwidHlwIjoiSldUIn0.eyJhY2Nlc3NfdG9rZW4iOiJhYmMifQ."
         "sgt6jCrtBXS85gOiCTPijdSMl3XbvF6fBMAKQ-5DyJA",
         "527308", "The header of Consultant-Token is not alg HS256, typ JWT."},
        {header + "eyJhY2Nlc3NUb2tlbiI6ImFiYyJ9.WYx16Mg2UIjclmW3FfrPe2GUQfoecgUvoB50TxdsP9w", "527308",
         "The payload of Consultant-Token holds no text \"access_token\"."},
    };
    for (const auto& [sent, secret, told] : cases) {
        const auto checked = checkToken(sent, secret);
        EXPECT_EQ(checked ? *checked : checked.error(), told);
        // The empty one is an access token, too.
        EXPECT_EQ(checked.has_value(), told.size() < 6);
    }
}

} // namespace quillet::gateway
