#include "Quillet/Backend.hpp"
#include "Quillet/Testing/ScriptedBackend.hpp"
#include "Support/RecordingDelegate.hpp"

#include <gmock/gmock.h>

namespace quillet::testing {

namespace {

using ::testing::ElementsAre;
using Lines = std::vector<std::string>;

struct BackendClientTest : ::testing::Test {
    BackendClientTest() {
        auto configuration = platform::URLSessionConfiguration::defaultConfiguration();
        configuration.log = [this](const platform::LoggedCall& call) { log.push_back(description(call)); };
        platform::URLSessionConfiguration::setDefaultConfiguration(std::move(configuration));
    }
    ~BackendClientTest() override { ScriptedBackend::uninstall(); }

    /// What the delegate has been told since.
    Lines taken() {
        platform::mainQueue().drain();
        return std::exchange(*outcomes->lines, {});
    }

    std::shared_ptr<ScriptedBackend> backend = ScriptedBackend::install();
    Lines log;
    std::shared_ptr<RecordingDelegate> outcomes = std::make_shared<RecordingDelegate>();
    BackendClient client{
        *authorize("secret access", "idp", "527308"), {"cart 1", 41052, "CL"}, "gateway.test"};
};

} // namespace

TEST_F(BackendClientTest, RunsTheThreeCallsAndLogsThemWithoutSecrets) {
    const auto associate = client.associate(outcomes);
    const auto openOrders = client.getOpenOrders(outcomes);
    const auto checkout = client.checkout(outcomes);
    backend->script(Call::checkout, {Reply{.status = 422, .body = sampleBody(Call::checkout)}});
    associate->execute();
    openOrders->execute();
    checkout->execute();
    EXPECT_THAT(taken(), ElementsAre("checking out", "associate 200 with a response",
                                     "open orders 200 with a response",
                                     ::testing::StartsWith("checkout 422 with a response: ")));
    EXPECT_TRUE(checkout->isFinishedSuccessfully());
    const auto bytes = [](Call call) { return std::to_string(sampleBody(call).size()) + " bytes, 0 ms"; };
    EXPECT_THAT(log, ElementsAre("PATCH /quillet-bff/sell-out-carts/cart%201 200, " + bytes(Call::associate),
                                 "GET /quillet-bff/consultants/CL/41052/sell-out-carts?status=OPEN 200, " +
                                     bytes(Call::getOpenOrders),
                                 "POST /quillet-bff/consultants/CL/41052/sell-out-carts/checkout 422, " +
                                     bytes(Call::checkout)));
    EXPECT_EQ(*backend->requests().back().headerFields.value("Authorization-Provider"), "idp");
}

TEST_F(BackendClientTest, IsAnsweredLateNeverAndByErrors) {
    using namespace std::chrono_literals;
    const platform::URLError offline{platform::URLError::Code::notConnectedToInternet, "There is no network"};
    backend->script(Call::getOpenOrders, {Reply{.body = sampleBody(Call::getOpenOrders), .after = 59'999ms},
                                          Reply::never(), Reply{.error = offline}});
    const auto worker = client.getOpenOrders(outcomes);
    worker->execute();
    worker->execute();
    worker->execute();
    EXPECT_THAT(taken(), ElementsAre("open orders 0: There is no network"));
    backend->clock()->advance(59'998ms);
    EXPECT_THAT(taken(), ElementsAre());
    backend->clock()->advance(1ms);
    EXPECT_THAT(taken(), ElementsAre("open orders 200 with a response"));
    backend->clock()->advance(1ms);
    EXPECT_THAT(taken(), ElementsAre("open orders 0: The request timed out"));
    EXPECT_EQ(log.back(), "GET /quillet-bff/consultants/CL/41052/sell-out-carts?status=OPEN failed: "
                          "The request timed out, 60000 ms");
    // The last reply of a script stays.
    worker->execute();
    EXPECT_THAT(taken(), ElementsAre("open orders 0: There is no network"));
}

} // namespace quillet::testing
