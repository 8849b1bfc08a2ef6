#include "Quillet/Quillet.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace quillet::testing {

namespace {

// Read before any test can change the configuration.
const Environment environmentAtStart = QuilletConfiguration::shared().environment();

} // namespace

TEST(Starter, TakesTheGatewayOfTheEnvironmentConfiguredWhenItIsMade) {
    EXPECT_EQ(environmentAtStart, Environment::prd);
    const std::pair<Environment, std::string> hosts[] = {{Environment::dev, QUILLET_GATEWAY_HOST_DEV},
                                                         {Environment::hml, QUILLET_GATEWAY_HOST_HML},
                                                         {Environment::prd, QUILLET_GATEWAY_HOST_PRD}};
    std::vector<Starter> starters;
    for (const auto& [environment, host] : hosts) {
        QuilletConfiguration::shared().configure(environment);
        starters.push_back(*Starter::create("ñandú", "idp", {"cart-1", 41051, "CL"}, nullptr));
    }
    for (std::size_t i = 0; i < starters.size(); ++i) {
        EXPECT_EQ(starters[i].domainUrl(), hosts[i].second);
        EXPECT_EQ(starters[i].authorization().provider, "idp");
        EXPECT_EQ(std::ranges::count(starters[i].authorization().jwt, '.'), 2);
    }
    EXPECT_FALSE(Starter::create("\xff", "idp", {}, nullptr));
    EXPECT_NE(starters[0].createRootViewController(), starters[0].createRootViewController());
}

} // namespace quillet::testing
