#include "Support/FakeWorkerCollaborators.hpp"
#include "Support/SandboxedSession.hpp"
#include "Workers/AssociateConsultantToCartWorker.hpp"
#include "Workers/CheckoutWorkerFactory.hpp"
#include "Workers/GetOpenOrdersWorkerFactory.hpp"

#include <gmock/gmock.h>

#include <semaphore>

namespace quillet {

using ::testing::ElementsAre;
using ::testing::StartsWith;

// The assembled workers, from execute() over a real session to the process's main queue, and each on a
// connection of its own although all speak to one host.
TEST(WorkerFactories, BuildWorkersThatTalkToTheBackEnd) {
    testing::SandboxedSession sandbox;
    URLSessionConfiguration::setDefaultConfiguration(sandbox.configuration);
    std::counting_semaphore waiting(0);
    mainQueue().setWakeUp([&] { waiting.release(); });
    const Authorization authorization{"token", "provider"};
    const auto associateTalk = std::make_shared<testing::Conversation<OrderResult>>();
    const auto associateDelegate = std::make_shared<testing::FakeAssociateDelegate>(associateTalk);
    const auto openTalk = std::make_shared<testing::Conversation<OpenOrdersResult>>();
    const auto openDelegate = std::make_shared<testing::FakeOpenOrdersDelegate>(openTalk);
    const auto checkoutTalk = std::make_shared<testing::Conversation<CheckoutResult>>();
    const auto checkoutDelegate = std::make_shared<testing::FakeCheckoutDelegate>(checkoutTalk);

    const auto associate =
        AssociateConsultantToCartWorker::factoryMethod("cart", 7, testing::gatewayHost, authorization);
    associate->setDelegate(associateDelegate);
    const auto open = GetOpenOrdersWorkerFactory("PE", 7, "token", testing::gatewayHost).create();
    open->setDelegate(openDelegate);
    const auto checkout = CheckoutWorkerFactory("PE", 7, authorization, testing::gatewayHost).create();
    checkout->setDelegate(checkoutDelegate);
    int status = 200;
    for (Executable* const worker :
         std::initializer_list<Executable*>{associate.get(), open.get(), checkout.get()}) {
        sandbox.server.enqueue(testing::Answer::complete(++status, R"({"consultant":{"id":7},"carts":[]})"));
        worker->execute();
        ASSERT_TRUE(waiting.try_acquire_for(std::chrono::seconds(30)));
        mainQueue().drain();
    }
    mainQueue().setWakeUp(nullptr);

    EXPECT_THAT(
        sandbox.server.requests(),
        ElementsAre(StartsWith("PATCH /quillet-bff/sell-out-carts/cart HTTP/1.1\r\n"),
                    StartsWith("GET /quillet-bff/consultants/PE/7/sell-out-carts?status=OPEN HTTP/1.1\r\n"),
                    StartsWith("POST /quillet-bff/consultants/PE/7/sell-out-carts/checkout HTTP/1.1\r\n")));
    EXPECT_EQ(sandbox.server.connections(), 3u);
    EXPECT_THAT(associateTalk->log, ElementsAre("result 201"));
    EXPECT_THAT(openTalk->log, ElementsAre("result 202"));
    EXPECT_THAT(checkoutTalk->log, ElementsAre("starting", "result 203"));
    EXPECT_TRUE(open->isFinishedSuccessfully());
    EXPECT_FALSE(checkout->isFinishedSuccessfully());
}

} // namespace quillet
