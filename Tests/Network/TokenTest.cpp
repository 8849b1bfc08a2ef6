#include "Fuzzing/Reference/Base64Url.hpp"
#include "Network/SessionTest.hpp"
#include "Network/Token/Base64Url.hpp"
#include "Network/Token/HmacSha256.hpp"
#include "Network/Token/HmacSha256Scrivener.hpp"
#include "Quillet/Authorization.hpp"
#include "Support/Thorough.hpp"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <openssl/hmac.h>

#include <numeric>
#include <random>

namespace quillet::testing {

namespace {

using ::testing::HasSubstr;
using ::testing::Not;

const std::string secret = "527308";

/// Any characters, those that JSON escapes more often.
std::string randomText(std::mt19937& random) {
    const std::string often[] = {"\"", "\\", "/", "\n", "\t", "\r", "\b", "\f", "ñ", "😀", "\xef\xbf\xbf"};
    std::string text;
    for (auto left = random() % 40; left > 0; --left) {
        text += random() % 3 == 0 ? often[random() % std::size(often)] : std::string(1, random() % 128);
    }
    return text;
}

} // namespace

// RFC 4231, cases 1 to 4, 6 and 7; RFC 7515, appendix A.1.
TEST(HmacSha256, GivesThePublishedSignatures) {
    std::string ascending(25, '\0');
    std::iota(ascending.begin(), ascending.end(), '\1');
    const std::string longKey(131, '\xaa');
    const std::string tokenKey =
        "AyM1SysPpbyDfgZld3umj1qzKObwVMkoqQ-EstJQLr_T-1qS0gZH75aKtMN3Yj0iPS4hcgUuTwjAzZr1Z9"
        "CAow";
    const struct {
        std::string key;
        std::string content;
        std::string signature;
    } cases[] = {
        {std::string(20, '\x0b'), "Hi There", "sDRMYdjbOFNcqK_OrwvxK4gdwgDJgz2nJuk3bC4yz_c"},
        {"Jefe", "what do ya want for nothing?", "W9zBRr9gdU5qBCQmCJV1x1oAPwidJzmDnexYuWTsOEM"},
        {std::string(20, '\xaa'), std::string(50, '\xdd'), "dz6pHjaADkaFTbjr0JGBpylZCYs--MEi2WNVFM7VZf4"},
        {ascending, std::string(50, '\xcd'), "glWKOJpEPA6kzIGYmfIIOoXw-qPlePgHei4_9GcpZls"},
        {longKey, "Test Using Larger Than Block-Size Key - Hash Key First",
         "YOQxWR7gtn8Niiaqy_W3f44LxiE3KMUUBUYEDw7jf1Q"},
        {longKey,
         "This is a test using a larger than block-size key and a larger than block-size data. The key needs "
         "to be hashed before being used by the HMAC algorithm.",
         "mwn_pxuUL8snY1-81bDpRL_cY2RPBxOTin9RU1w6NeI"},
        {fuzzing::fromBase64Url(tokenKey).value(),
         "eyJ0eXAiOiJKV1QiLA0KICJhbGciOiJIUzI1NiJ9."
         "eyJpc3MiOiJqb2UiLA0KICJleHAiOjEzMDA4MTkzODAsDQogImh0dHA6Ly9l"
         "eGFtcGxlLmNvbS9pc19yb290Ijp0cnVlfQ",
         "dBjftJeZ4CVP-mB92K27uhbUJU1p1r_wW1gFWFOEjXk"},
    };
    for (const auto& [key, content, signature] : cases) {
        EXPECT_EQ(base64Url(hmacSha256(content, key).value()), signature) << content;
    }
}

TEST(Token, IsTheJsonOfAnyAccessTokenSignedAsOpenSslSigns) {
    std::mt19937 random;
    const std::size_t cases = thorough(2'000, 100'000);
    for (std::size_t i = 0; i < cases; ++i) {
        const std::string accessToken = randomText(random);
        const std::string key = i % 2 == 0 ? secret : randomText(random);
        // Another writer escapes all that has to be, so not the slash.
        std::string payload = nlohmann::json{{"access_token", accessToken}}.dump();
        for (auto slash = payload.find('/'); slash != payload.npos; slash = payload.find('/', slash + 2)) {
            payload.insert(slash, "\\");
        }
        const std::string token = authorize(accessToken, "idp", key).value().jwt;
        const std::string content = token.substr(0, token.rfind('.'));
        ASSERT_EQ(content.substr(0, 37), "eyJhbGciOiJIUzI1NiIsInR5cCI6IkpXVCJ9.");
        ASSERT_EQ(fuzzing::fromBase64Url(content.substr(37)), payload) << token;
        unsigned char signature[EVP_MAX_MD_SIZE];
        unsigned length = 0;
        HMAC(EVP_sha256(), key.data(), static_cast<int>(key.size()),
             reinterpret_cast<const unsigned char*>(content.data()), content.size(), signature, &length);
        ASSERT_EQ(fuzzing::fromBase64Url(token.substr(content.size() + 1)),
                  std::string(signature, signature + length))
            << token;
    }
    RecordProperty("cases", static_cast<int>(cases));
}

TEST(Token, FailsForTextThatIsNotUtf8AndTellsNothingOfIt) {
    EXPECT_EQ(description(authorize("distinctive\xc3(", "idp", secret).error()),
              "Cannot be encoded: access_token");
    EXPECT_EQ(authorize("a", "idp", "distinctive\xff").error(),
              JWTError(HmacSha256Error::couldNotTransformSecretKeyInData));
    EXPECT_EQ(HmacSha256Scrivener().signatureBase64String("\xff", secret),
              std::unexpected(HmacSha256Error::couldNotTransformContentToSignInData));
}

TEST_F(SessionTest, TellsNoTokenInALogOrAnErrorHoweverACallEnds) {
    Recorder<std::string> log;
    configuration.log = [&](const platform::LoggedCall& call) { log.record(description(call)); };
    // With this server's certificate not to be trusted.
    configuration.hostMappings.push_back({"other.test", "127.0.0.1", server.port()});
    const std::string token = authorize("distinctive", "idp", secret).value().jwt;
    const std::string head = "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\n";
    server.enqueue(Answer::complete(500, "{}"));
    server.enqueue({{head, "cut"}, Answer::Ending::cut});
    server.enqueue({{"no HTTP at all\r\n\r\n"}, Answer::Ending::close});
    server.enqueue({{head + std::string(20, 'a')}, Answer::Ending::close});
    const platform::URLSession session(configuration);
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
    for (const char* host : {gatewayHost, gatewayHost, gatewayHost, gatewayHost, "other.test"}) {
        platform::URLRequest request{.url = {host, "/"}};
        ASSERT_TRUE(request.headerFields.addValue(token, "Consultant-Token"));
        const auto& error = exchange(session, request).error;
        log.record(error ? error->message : "");
    }
    std::string told = ::testing::internal::GetCapturedStdout() + ::testing::internal::GetCapturedStderr();
    EXPECT_EQ(log.count(), 10u);
    for (const auto& line : log.all()) {
        told += line + '\n';
    }
    EXPECT_THAT(server.requests().at(0), HasSubstr("Consultant-Token: " + token));
    for (const auto& hidden : {token, token.substr(37, 20), token.substr(token.rfind('.')), secret}) {
        EXPECT_THAT(told, Not(HasSubstr(hidden)));
    }
}

} // namespace quillet::testing
