#include "Entry/Quillet.hpp"
#include "Support/FakeHost.hpp"

#include <openssl/evp.h>
#include <openssl/hmac.h>

#include <gtest/gtest.h>

#include <array>

namespace quillet::testing {

namespace {

// Read before any test can have configured anything.
const Environment environmentAtStart = QuilletConfiguration::shared().environment();

std::expected<Starter, JWTError> start(const std::string& accessToken = "token",
                                       const std::shared_ptr<QuilletNavigationDelegate>& host = nullptr) {
    return Starter::create(accessToken, "idp", {"cart-1", 41051, "CL"}, host);
}

std::string base64Url(const unsigned char* bytes, std::size_t count) {
    std::string text(4 * ((count + 2) / 3) + 1, '\0');
    const int length = EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()), bytes, int(count));
    text.resize(std::min(static_cast<std::size_t>(length), text.find('=')));
    std::ranges::replace(text, '+', '-');
    std::ranges::replace(text, '/', '_');
    return text;
}

} // namespace

TEST(Starter, TakesTheGatewayOfTheEnvironmentConfiguredWhenItIsMade) {
    EXPECT_EQ(environmentAtStart, Environment::prd);
    QuilletConfiguration::shared().configure(environmentAtStart);
    const auto before = start();
    const std::pair<Environment, std::string> hosts[] = {{Environment::dev, QUILLET_GATEWAY_HOST_DEV},
                                                         {Environment::hml, QUILLET_GATEWAY_HOST_HML},
                                                         {Environment::prd, QUILLET_GATEWAY_HOST_PRD}};
    for (const auto& [environment, host] : hosts) {
        SCOPED_TRACE(host);
        QuilletConfiguration::shared().configure(environment);
        EXPECT_EQ(start()->domainUrl(), host);
        EXPECT_EQ(before->domainUrl(), QUILLET_GATEWAY_HOST_PRD);
    }
}

TEST(Starter, SignsTheAccessTokenWithTheBuildsSecret) {
    for (const std::string accessToken : {"", "host-token", "ñandú"}) {
        SCOPED_TRACE(accessToken);
        const auto starter = start(accessToken);
        ASSERT_TRUE(starter);
        EXPECT_EQ(starter->authorization().provider, "idp");
        const std::string& jwt = starter->authorization().jwt;
        const auto dot = jwt.rfind('.');
        std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
        unsigned length = 0;
        const std::string secret = QUILLET_SIGNING_SECRET;
        HMAC(EVP_sha256(), secret.data(), int(secret.size()),
             reinterpret_cast<const unsigned char*>(jwt.data()), dot, digest.data(), &length);
        EXPECT_EQ(jwt.substr(dot + 1), base64Url(digest.data(), length));

        const std::string payload = R"({"access_token":")" + accessToken + R"("})";
        const auto first = jwt.find('.') + 1;
        EXPECT_EQ(jwt.substr(first, dot - first),
                  base64Url(reinterpret_cast<const unsigned char*>(payload.data()), payload.size()));
    }
}

TEST(Starter, FailsForAnAccessTokenThatIsNotUtf8) {
    EXPECT_FALSE(start("\xff"));
}

TEST(Starter, MakesANewScreenEachTimeAndKeepsNoHostAlive) {
    const auto log = makeLog();
    auto host = std::make_shared<FakeNavigation>(log);
    const std::weak_ptr<FakeNavigation> watched = host;
    const auto starter = start("token", host);
    const auto first = starter->createRootViewController();
    const auto second = starter->createRootViewController();
    EXPECT_NE(first, second);
    host.reset();
    EXPECT_TRUE(watched.expired());
    EXPECT_TRUE(starter->createRootViewController());
    EXPECT_TRUE(start()->createRootViewController());
}

} // namespace quillet::testing
