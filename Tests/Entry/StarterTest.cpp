#include "Quillet/Quillet.hpp"
#include "Quillet/Testing/RecordingHost.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace quillet::testing {

namespace {

// Read before any test can change the configuration.
const Environment environmentAtStart = QuilletConfiguration::shared().environment();

std::expected<Starter, JWTError> start(const std::string& accessToken = "token",
                                       const std::shared_ptr<QuilletNavigationDelegate>& host = nullptr) {
    return Starter::create(accessToken, "idp", {"cart-1", 41051, "CL"}, host);
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

TEST(Starter, SignsAnAccessTokenThatIsUtf8) {
    const auto starter = start("ñandú");
    ASSERT_TRUE(starter);
    EXPECT_EQ(starter->authorization().provider, "idp");
    EXPECT_EQ(std::ranges::count(starter->authorization().jwt, '.'), 2);
    EXPECT_FALSE(start("\xff"));
}

TEST(Starter, MakesANewScreenEachTimeAndKeepsNoHostAlive) {
    const auto log = makeLog();
    auto host = std::make_shared<RecordingNavigation>(log);
    const std::weak_ptr<RecordingNavigation> watched = host;
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
