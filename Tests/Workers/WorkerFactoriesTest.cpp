#include "Network/Errors/HttpErrorFactory.hpp"
#include "Network/Request/URLRequestWrapper.hpp"
#include "Network/Services/SellOutCartCheckoutService.hpp"
#include "Network/Session/URLSessionWrapper.hpp"
#include "Network/Url/UrlCreator.hpp"
#include "Support/FakeWorkerCollaborators.hpp"
#include "Support/SandboxedSession.hpp"
#include "Workers/AssociateConsultantToCartWorker.hpp"
#include "Workers/CheckoutWorkerFactory.hpp"
#include "Workers/GetOpenOrdersWorkerFactory.hpp"

#include <gmock/gmock.h>

#include <latch>
#include <semaphore>
#include <thread>

namespace quillet {

using ::testing::ElementsAre;
using ::testing::StartsWith;

// The assembled workers, from execute() over a real session to the process's main queue, each on its own
// connection to the same host.
TEST(WorkerFactories, BuildWorkersThatTalkToTheBackEnd) {
    testing::SandboxedSession sandbox;
    platform::URLSessionConfiguration::setDefaultConfiguration(sandbox.configuration);
    std::counting_semaphore waiting(0);
    platform::mainQueue().setWakeUp([&] { waiting.release(); });
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
        platform::mainQueue().drain();
    }
    platform::mainQueue().setWakeUp(nullptr);

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

namespace {

// Queues nothing, and makes the session's thread wait until the test has released the worker.
class ReleasingQueue final : public DispatchQueuing {
public:
    explicit ReleasingQueue(std::shared_ptr<std::latch> isReleased, std::shared_ptr<std::latch> isGone)
        : isReleased_(std::move(isReleased)), isGone_(std::move(isGone)) {}
    ~ReleasingQueue() override {
        EXPECT_EQ(std::this_thread::get_id(), sessionsThread_);
        isGone_->count_down();
    }

    void async(std::function<void()>) const override {
        sessionsThread_ = std::this_thread::get_id();
        isReleased_->wait();
    }

private:
    std::shared_ptr<std::latch> isReleased_;
    std::shared_ptr<std::latch> isGone_;
    mutable std::thread::id sessionsThread_;
};

} // namespace

// The worker owns its session, so the session's thread frees both.
TEST(Worker, MayBeReleasedLastOnItsSessionsThread) {
    testing::SandboxedSession sandbox;
    sandbox.server.enqueue(testing::Answer::complete(200, "{}"));
    const auto isReleased = std::make_shared<std::latch>(1);
    const auto isGone = std::make_shared<std::latch>(1);
    auto worker = std::make_shared<CheckoutWorker>(
        std::make_unique<SellOutCartCheckoutService>(
            Authorization{"token", "provider"}, "PE", 7, testing::gatewayHost,
            std::make_shared<URLRequestFactory>(),
            std::make_shared<URLSessionWrapper>(
                std::make_shared<platform::URLSession>(sandbox.configuration)),
            std::make_shared<HttpErrorFactory>(), std::make_shared<UrlCreator>()),
        std::make_unique<ReleasingQueue>(isReleased, isGone));
    worker->execute();
    while (worker.use_count() == 1) {
        std::this_thread::yield();
    }
    worker.reset();
    isReleased->count_down();
    isGone->wait();
}

} // namespace quillet
