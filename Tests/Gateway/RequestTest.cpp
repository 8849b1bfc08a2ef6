#include "Gateway/Json.hpp"
#include "Gateway/RequestCheck.hpp"
#include "Gateway/Requests.hpp"
#include "Gateway/Token.hpp"

#include <functional>
#include <vector>

#include <gtest/gtest.h>

namespace quillet::gateway {

namespace {

constexpr auto header = R"({"alg":"HS256","typ":"JWT"})";
constexpr auto payload = R"({"access_token":"abc"})";

struct WrongRequest {
    std::string what;
    int status;
    Request request;
};

using Change = std::function<void(Request&)>;

Request changed(Request request, const Change& change) {
    change(request);
    return request;
}
Change with(const std::string& name, const std::string& value) {
    return [=](Request& request) { setHeader(request, name, value); };
}
Change without(const std::string& name) {
    return [=](Request& request) { removeHeader(request, name); };
}
Change again(const std::string& name, const std::string& value) {
    return [=](Request& request) { request.headers.emplace_back(name, value); };
}
Change method(const std::string& value) {
    return [=](Request& request) { request.method = value; };
}
Change target(const std::string& value) {
    return [=](Request& request) { request.target = value; };
}
Change body(const std::string& value) {
    return [=](Request& request) { request.body = value; };
}

std::vector<WrongRequest> wrongRequests() {
    const auto associate = associateRequest(41051, cartOf(41051));
    const auto open = openRequest(41051);
    const auto checkout = checkoutRequest(41051);
    const auto token = goodToken();
    return {
        {"a strange host", 421, changed(open, with("Host", "elsewhere.example"))},
        {"no host", 400, changed(open, without("Host"))},
        {"an unknown path", 404,
         changed(open, target("/quillet-bff/consultants/CL/41051/carts?status=OPEN"))},
        {"a doubled slash", 404,
         changed(checkout, target("//quillet-bff/consultants/CL/41051/sell-out-carts/checkout"))},
        {"a slash too many", 404, changed(checkout, target(checkout.target + "/"))},
        {"a country with a slash", 404, openRequest(41051, "C/L")},
        {"half a percent code", 400, changed(associate, target("/quillet-bff/sell-out-carts/a%2"))},
        {"a percent code with a sign", 400, changed(associate, target("/quillet-bff/sell-out-carts/%+1"))},
        {"POST for associate", 405, changed(associate, method("POST"))},
        {"a method in lower case", 405, changed(associate, method("patch"))},
        {"GET for checkout", 405, changed(checkout, method("GET"))},
        {"HEAD for open", 405, changed(open, method("HEAD"))},
        {"no token", 401, changed(open, without("Consultant-Token"))},
        {"a scheme before the token", 401, changed(open, with("Consultant-Token", "Bearer " + token))},
        {"another secret", 401,
         changed(open, with("Consultant-Token", signedToken(header, payload, "000000")))},
        {"another algorithm", 401,
         changed(open, with("Consultant-Token", signedToken(R"({"alg":"none","typ":"JWT"})", payload)))},
        {"another payload key", 401,
         changed(open, with("Consultant-Token", signedToken(header, R"({"accessToken":"abc"})")))},
        {"padding", 401, changed(open, with("Consultant-Token", token + "="))},
        {"a signature cut short", 401,
         changed(open, with("Consultant-Token", token.substr(0, token.size() - 3)))},
        {"a fourth segment", 401, changed(open, with("Consultant-Token", token + ".x"))},
        {"two tokens", 400, changed(open, again("consultant-token", token))},
        {"no provider", 403, changed(checkout, without("Authorization-Provider"))},
        {"an empty provider", 403, changed(associate, with("Authorization-Provider", ""))},
        {"a provider for open", 400, changed(open, with("Authorization-Provider", "sales-app"))},
        {"a header of nobody's", 400, changed(open, with("X-Debug", "1"))},
        {"a form's content type", 415,
         changed(associate, with("Content-Type", "application/x-www-form-urlencoded"))},
        {"no content type", 415, changed(associate, without("Content-Type"))},
        {"a content type without a body", 415, changed(checkout, with("Content-Type", "application/json"))},
        {"accepting all", 406, changed(checkout, with("Accept", "*/*"))},
        {"accepting nothing", 406, changed(open, without("Accept"))},
        {"no query", 400, changed(open, target("/quillet-bff/consultants/CL/41051/sell-out-carts"))},
        {"another status", 400,
         changed(open, target("/quillet-bff/consultants/CL/41051/sell-out-carts?status=open"))},
        {"a query too many", 400, changed(checkout, target(checkout.target + "?"))},
        {"a leading zero", 400,
         changed(open, target("/quillet-bff/consultants/CL/041051/sell-out-carts?status=OPEN"))},
        {"a number over 64 bits", 400,
         changed(open,
                 target("/quillet-bff/consultants/CL/18446744073709551616/sell-out-carts?status=OPEN"))},
        {"a body for checkout", 400, changed(checkout, body("{}"))},
        {"no body", 400, changed(associate, body(""))},
        {"a body cut short", 400, changed(associate, body(R"({"consultant":{"id":41051})"))},
        {"the id as text", 422, changed(associate, body(R"({"consultant":{"id":"41051"}})"))},
        {"the id as a fraction", 422, changed(associate, body(R"({"consultant":{"id":41051.0}})"))},
        {"a negative id", 422, changed(associate, body(R"({"consultant":{"id":-1}})"))},
        {"a key too many", 422, changed(associate, body(R"({"consultant":{"id":41051},"cart":"x"})"))},
        {"the id alone", 422, changed(associate, body(R"({"id":41051})"))},
    };
}

} // namespace

TEST(GatewayRequests, AreTakenAsTheModuleSendsThem) {
    const auto associate =
        checkRequest(associateRequest(18446744073709551615u, "a%20b/%C3%B1"), builtInIdentity());
    ASSERT_TRUE(associate);
    EXPECT_EQ(associate->cart, "a b/ñ");
    EXPECT_EQ(associate->consultant, 18446744073709551615u);
    const auto open = checkRequest(openRequest(0, "C%2FL"), builtInIdentity());
    ASSERT_TRUE(open);
    EXPECT_EQ(open->country, "C/L");
    EXPECT_EQ(open->consultant, 0u);
    EXPECT_TRUE(checkRequest(checkoutRequest(41051), builtInIdentity()));
}

TEST(GatewayRequests, ThatAreWrongGetAClientErrorWithAllItsKeys) {
    for (const auto& wrong : wrongRequests()) {
        SCOPED_TRACE(wrong.what);
        const auto checked = checkRequest(wrong.request, builtInIdentity());
        ASSERT_FALSE(checked);
        EXPECT_EQ(checked.error().status, wrong.status);
        const auto json = Json::parse(checked.error().body);
        EXPECT_EQ(json["statusCode"], wrong.status);
        EXPECT_EQ(json["path"], wrong.request.target);
        EXPECT_EQ(json["error"], reasonPhrase(wrong.status));
        EXPECT_FALSE(json["details"].get<std::string>().empty());
    }
}

TEST(GatewayRequests, WithBytesThatAreNotTextStillGetAnErrorBodyThatIs) {
    auto request = openRequest(41051);
    setHeader(request, "Host", "\xff\xfe");
    const auto checked = checkRequest(request, builtInIdentity());
    ASSERT_FALSE(checked);
    EXPECT_FALSE(Json::parse(checked.error().body, nullptr, false).is_discarded());
}

TEST(GatewayTokens, SignedElsewhereAreAccepted) {
    // Made with the openssl command, independently of the code under test.
    const auto access = checkToken("eyJhbGciOiJIUzI1NiIsInR5cCI6IkpXVCJ9.eyJhY2Nlc3NfdG9rZW4iOiJhYmNcL3gifQ."
                                   "LxwjqUO9VIOuiURxrZDCFmkvVp36uVHS1HtzDaM9vTg",
                                   "527308");
    ASSERT_TRUE(access) << access.error();
    EXPECT_EQ(*access, "abc/x");
    EXPECT_EQ(checkToken(signedToken(header, R"({"access_token":""})"), builtInIdentity().secret), "");
}

} // namespace quillet::gateway
