#include "Quillet/Backend.hpp"
#include "Quillet/Testing/ScriptedBackend.hpp"
#include "Support/RecordingDelegate.hpp"
#include "Support/SandboxedSession.hpp"
#include "Workers/SharedResult.hpp"

#include <gmock/gmock.h>

#include <future>
#include <latch>
#include <semaphore>
#include <thread>

namespace quillet::testing {

namespace {

using namespace std::chrono_literals;
using ::testing::_;
using ::testing::ElementsAre;
using Lines = std::vector<std::string>;

enum class Step { beforeStart, underWay, queued, inTheCallback };

struct Workers : ::testing::TestWithParam<Call> {
    Workers() { worker = make(); }
    ~Workers() override { ScriptedBackend::uninstall(); }

    [[nodiscard]] std::shared_ptr<Executable> make() const {
        const BackendClient client({"token", "idp"}, {"cart", 41052, "CL"}, "gateway.test");
        return GetParam() == Call::associate       ? client.associate(delegate)
               : GetParam() == Call::getOpenOrders ? client.getOpenOrders(delegate)
                                                   : client.checkout(delegate);
    }

    void pass(std::chrono::milliseconds time) {
        backend->clock()->advance(time);
        platform::mainQueue().drain();
    }

    std::string name = std::vector{"associate", "open orders", "checkout"}[static_cast<size_t>(GetParam())];
    std::shared_ptr<ScriptedBackend> backend = ScriptedBackend::install();
    std::shared_ptr<RecordingDelegate> delegate = std::make_shared<RecordingDelegate>();
    std::shared_ptr<Lines> lines = delegate->lines;
    std::shared_ptr<Executable> worker;
};

/// A result that tells when it is freed.
struct Sized {
    std::size_t size = 0;
    std::shared_ptr<void> last;
};

std::size_t records(const Sized& result) {
    return result.size;
}

} // namespace

TEST_P(Workers, CallNobodyOnceOneOfTheTwoIsGone) {
    using enum Step;
    int cases = 0;
    for (const std::string gone : {"neither", "worker", "delegate", "worker and delegate"}) {
        for (const Step step : {beforeStart, underWay, queued, inTheCallback}) {
            SCOPED_TRACE(gone + " at " + std::to_string(static_cast<int>(step)));
            const auto reach = [&](Step now) {
                worker = now == step && gone.contains("worker") ? nullptr : worker;
                delegate = now == step && gone.contains("delegate") ? nullptr : delegate;
            };
            delegate = std::make_shared<RecordingDelegate>();
            lines = delegate->lines;
            worker = make();
            const std::weak_ptr<Executable> watched = worker;
            const std::size_t requests = backend->requests().size();
            reach(beforeStart);
            const bool isStarted = worker != nullptr;
            Lines told;
            if (isStarted && delegate && GetParam() == Call::checkout) {
                told.push_back("checking out");
            }
            backend->script(GetParam(), {Reply{.body = sampleBody(GetParam()), .after = 5s}});
            if (isStarted) {
                worker->execute();
            }
            reach(underWay);
            EXPECT_EQ(watched.expired(), !worker);
            backend->clock()->advance(5s);
            reach(queued);
            EXPECT_EQ(watched.expired(), !worker);
            if (step == inTheCallback || gone == "neither") {
                told.push_back(name + " 200 with a response");
                delegate->then = [&] { reach(inTheCallback); };
            }
            pass(60s);

            EXPECT_EQ(*lines, told);
            EXPECT_EQ(backend->requests().size(), requests + isStarted);
            EXPECT_EQ(watched.expired(), !worker);
            EXPECT_TRUE(!worker || worker->isFinishedSuccessfully());
            ++cases;
        }
    }
    RecordProperty("cases", cases);
}

TEST_P(Workers, RememberTheLatestAnswer) {
    backend->script(GetParam(), {Reply{.body = sampleBody(GetParam()), .after = 1s}, Reply::never()});
    worker->execute();
    worker->execute();
    lines->clear();
    pass(1s);
    EXPECT_THAT(*lines, ElementsAre(name + " 200 with a response"));
    EXPECT_TRUE(worker->isFinishedSuccessfully());
    pass(59s);
    EXPECT_THAT(*lines, ElementsAre(_, name + " 0: The request timed out"));
    EXPECT_FALSE(worker->isFinishedSuccessfully());
}

INSTANTIATE_TEST_SUITE_P(, Workers, ::testing::Values(Call::associate, Call::getOpenOrders, Call::checkout));

// From execute() over a real session to the process's main queue, each worker on its own connection.
TEST(WorkersOverTheNetwork, SendExactlyTheseRequestsAndDeliverOnTheMainQueue) {
    SandboxedSession sandbox;
    Lines log;
    sandbox.configuration.log = [&](const platform::LoggedCall& call) { log.push_back(description(call)); };
    platform::URLSessionConfiguration::setDefaultConfiguration(sandbox.configuration);
    std::counting_semaphore waiting(0);
    platform::mainQueue().setWakeUp([&] { waiting.release(); });
    const BackendClient client({"the.token", "idp"}, {"a b/../ñ", 18446744073709551615u, "PE"}, gatewayHost);
    // An empty header is sent too.
    const BackendClient emptyClient({"the.token", ""}, {"", 0, "CL"}, gatewayHost);
    const auto delegate = std::make_shared<RecordingDelegate>();
    const std::string common = " HTTP/1.1\r\nHost: gateway.test\r\nAccept-Encoding: gzip\r\n";
    const std::string token = "Consultant-Token: the.token\r\n";
    const std::string toSend =
        common + "Content-Type: application/json\r\n" + token + "Authorization-Provider:";
    const std::string toGet = common + "Accept: application/json\r\n";
    const std::pair<std::shared_ptr<Executable>, std::string> cases[] = {
        {client.associate(delegate), "PATCH /quillet-bff/sell-out-carts/a%20b/../%C3%B1" + toSend +
                                         " idp\r\nContent-Length: 42\r\n\r\n" +
                                         R"({"consultant":{"id":18446744073709551615}})"},
        {client.getOpenOrders(delegate),
         "GET /quillet-bff/consultants/PE/18446744073709551615/sell-out-carts?status=OPEN" + toGet + token +
             "\r\n"},
        {client.checkout(delegate),
         "POST /quillet-bff/consultants/PE/18446744073709551615/sell-out-carts/checkout" + toGet +
             "Authorization-Provider: idp\r\n" + token + "Content-Length: 0\r\n\r\n"},
        {emptyClient.associate(delegate), "PATCH /quillet-bff/sell-out-carts/" + toSend +
                                              "\r\nContent-Length: 23\r\n\r\n" +
                                              R"({"consultant":{"id":0}})"},
    };
    for (const auto& [worker, request] : cases) {
        sandbox.server.enqueue(Answer::complete(201, R"({"consultant":{"id":7},"carts":[]})"));
        worker->execute();
        ASSERT_TRUE(waiting.try_acquire_for(30s));
        platform::mainQueue().drain();
        EXPECT_EQ(sandbox.server.requests().back(), request);
        EXPECT_EQ(log.back(), request.substr(0, request.find(" HTTP")) + " 201, 34 bytes, 0 ms");
    }
    platform::mainQueue().setWakeUp(nullptr);
    EXPECT_EQ(sandbox.server.connections(), 4u);
    EXPECT_THAT(*delegate->lines, ElementsAre("associate 201", "open orders 201 with a response",
                                              "checking out", "checkout 201", "associate 201"));
}

// The worker owns its session, so the session's thread frees both.
TEST(WorkersOverTheNetwork, MayBeReleasedLastOnTheirSessionsThread) {
    SandboxedSession sandbox;
    sandbox.server.enqueue(Answer::complete(200, "{}"));
    platform::URLSessionConfiguration::setDefaultConfiguration(sandbox.configuration);
    std::latch isHeld(1);
    std::latch isReleased(1);
    platform::mainQueue().setWakeUp([&] {
        isHeld.count_down();
        isReleased.wait();
    });
    auto worker = BackendClient({"token", "idp"}, {"cart", 7, "PE"}, gatewayHost).checkout({});
    const std::weak_ptr<Executable> watched = worker;
    worker->execute();
    isHeld.wait();
    worker.reset();
    EXPECT_FALSE(watched.expired());
    isReleased.count_down();
    const auto deadline = std::chrono::steady_clock::now() + 30s;
    while (!watched.expired() && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::yield();
    }
    EXPECT_TRUE(watched.expired());
    platform::mainQueue().setWakeUp(nullptr);
    EXPECT_EQ(platform::mainQueue().drain(), 1u);
}

TEST(SharedResult, IsFreedOnAThreadOfItsOwnIfItIsLarge) {
    for (const std::size_t size : {0, 999, 1000}) {
        const auto freed = std::make_shared<std::promise<std::thread::id>>();
        const auto tell = [freed](void*) { freed->set_value(std::this_thread::get_id()); };
        sharedResult(Sized{size, {nullptr, tell}}).reset();
        EXPECT_EQ(freed->get_future().get() == std::this_thread::get_id(), size < 1000) << size;
    }
}

} // namespace quillet::testing
