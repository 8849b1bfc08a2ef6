#include "Quillet/Backend.hpp"
#include "Quillet/Testing/ScriptedBackend.hpp"
#include "Support/RecordingDelegate.hpp"
#include "Support/SandboxedSession.hpp"

#include <gmock/gmock.h>

#include <latch>
#include <semaphore>
#include <thread>

namespace quillet::testing {

namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::StartsWith;
using Lines = std::vector<std::string>;

/// What goes, and at which step of a call.
enum class Gone { neither, theWorker, theDelegate, both };
enum class Step { beforeStart, underWay, queued, inTheCallback };

struct Workers : ::testing::TestWithParam<Call> {
    Workers() { worker = make(); }
    ~Workers() override { ScriptedBackend::uninstall(); }

    [[nodiscard]] std::shared_ptr<Executable> make() const {
        const BackendClient client({"token", "idp"}, {"cart", 41052, "CL"}, "gateway.test");
        switch (GetParam()) {
        case Call::associate:
            return client.associate(delegate);
        case Call::getOpenOrders:
            return client.getOpenOrders(delegate);
        case Call::checkout:
            break;
        }
        return client.checkout(delegate);
    }

    void end(Gone gone) {
        if (gone == Gone::theWorker || gone == Gone::both) {
            worker.reset();
        }
        if (gone == Gone::theDelegate || gone == Gone::both) {
            delegate.reset();
        }
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

} // namespace

TEST_P(Workers, CallNobodyOnceOneOfTheTwoIsGone) {
    int cases = 0;
    for (const Gone gone : {Gone::neither, Gone::theWorker, Gone::theDelegate, Gone::both}) {
        for (const Step step : {Step::beforeStart, Step::underWay, Step::queued, Step::inTheCallback}) {
            SCOPED_TRACE(std::to_string(static_cast<int>(gone)) + " at " +
                         std::to_string(static_cast<int>(step)));
            delegate = std::make_shared<RecordingDelegate>();
            lines = delegate->lines;
            worker = make();
            const std::weak_ptr<Executable> watched = worker;
            const std::size_t requests = backend->requests().size();
            if (step == Step::beforeStart) {
                end(gone);
            }
            const bool isStarted = worker != nullptr;
            Lines told;
            if (isStarted) {
                if (GetParam() == Call::checkout && delegate) {
                    told.push_back("checking out");
                }
                backend->script(GetParam(), {Reply{.body = sampleBody(GetParam()), .after = 5s}});
                worker->execute();
            }
            if (step == Step::underWay) {
                end(gone);
            }
            EXPECT_EQ(watched.expired(), !worker);
            backend->clock()->advance(5s);
            if (step == Step::queued) {
                end(gone);
            }
            EXPECT_EQ(watched.expired(), !worker);
            if (step == Step::inTheCallback) {
                delegate->then = [&] { end(gone); };
            }
            if (step == Step::inTheCallback || gone == Gone::neither) {
                told.push_back(name + " 200 with a response");
            }
            pass(60s);

            EXPECT_THAT(*lines, ElementsAreArray(told));
            EXPECT_EQ(backend->requests().size(), requests + isStarted);
            EXPECT_EQ(watched.expired(), !worker);
            EXPECT_TRUE(!worker || worker->isFinishedSuccessfully());
            ++cases;
        }
    }
    RecordProperty("cases", cases);
}

TEST_P(Workers, AreAnsweredInAnyOrderAndRememberTheLatest) {
    const platform::URLError offline{platform::URLError::Code::notConnectedToInternet, "There is no network"};
    backend->script(GetParam(), {Reply{.body = sampleBody(GetParam()), .after = 59'999ms}, Reply::never(),
                                 Reply{.error = offline}});
    for (int run = 0; run < 4; ++run) {
        worker->execute();
    }
    const auto told = [&](std::chrono::milliseconds time) {
        lines->clear();
        pass(time);
        return *lines;
    };
    // The last reply of a script stays.
    EXPECT_THAT(told(0ms), ElementsAre(name + " 0: There is no network", name + " 0: There is no network"));
    EXPECT_THAT(told(59'998ms), ElementsAre());
    EXPECT_FALSE(worker->isFinishedSuccessfully());
    EXPECT_THAT(told(1ms), ElementsAre(name + " 200 with a response"));
    EXPECT_TRUE(worker->isFinishedSuccessfully());
    EXPECT_THAT(told(1ms), ElementsAre(name + " 0: The request timed out"));
    EXPECT_FALSE(worker->isFinishedSuccessfully());
}

INSTANTIATE_TEST_SUITE_P(, Workers, ::testing::Values(Call::associate, Call::getOpenOrders, Call::checkout),
                         [](const auto& parameter) {
                             return parameter.param == Call::associate       ? "Associate"
                                    : parameter.param == Call::getOpenOrders ? "GetOpenOrders"
                                                                             : "Checkout";
                         });

// From execute() over a real session to the process's main queue, each worker on its own connection.
TEST(WorkersOverTheNetwork, DeliverOnTheMainQueueAndLogNoSecrets) {
    SandboxedSession sandbox;
    Lines log;
    sandbox.configuration.log = [&](const platform::LoggedCall& call) { log.push_back(description(call)); };
    platform::URLSessionConfiguration::setDefaultConfiguration(sandbox.configuration);
    std::counting_semaphore waiting(0);
    platform::mainQueue().setWakeUp([&] { waiting.release(); });
    const BackendClient client(*authorize("secret access", "idp", "527308"), {"cart 1", 41052, "CL"},
                               gatewayHost);
    const auto delegate = std::make_shared<RecordingDelegate>();
    int status = 200;
    for (const auto& worker :
         {client.associate(delegate), client.getOpenOrders(delegate), client.checkout(delegate)}) {
        sandbox.server.enqueue(Answer::complete(++status, R"({"consultant":{"id":7},"carts":[]})"));
        worker->execute();
        ASSERT_TRUE(waiting.try_acquire_for(30s));
        platform::mainQueue().drain();
        EXPECT_EQ(worker->isFinishedSuccessfully(), status == 202);
    }
    platform::mainQueue().setWakeUp(nullptr);

    const Lines calls{"PATCH /quillet-bff/sell-out-carts/cart%201",
                      "GET /quillet-bff/consultants/CL/41052/sell-out-carts?status=OPEN",
                      "POST /quillet-bff/consultants/CL/41052/sell-out-carts/checkout"};
    const auto requests = sandbox.server.requests();
    ASSERT_EQ(requests.size(), 3u);
    for (std::size_t index = 0; index < 3; ++index) {
        EXPECT_THAT(requests[index], StartsWith(calls[index] + " HTTP/1.1\r\n"));
        EXPECT_EQ(log.at(index), calls[index] + " " + std::to_string(201 + index) + ", 34 bytes, 0 ms");
    }
    EXPECT_THAT(requests.back(), HasSubstr("Authorization-Provider: idp\r\n"));
    EXPECT_EQ(sandbox.server.connections(), 3u);
    EXPECT_THAT(*delegate->lines, ElementsAre("associate 201", "open orders 202 with a response",
                                              "checking out", "checkout 203"));
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

} // namespace quillet::testing
