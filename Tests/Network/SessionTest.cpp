#include "Platform/Http/URLSession.hpp"
#include "Quillet/Testing/ScriptedBackend.hpp"
#include "Support/FakeNetworkPath.hpp"
#include "Support/SandboxedSession.hpp"

#include <gtest/gtest.h>

#include <future>

namespace quillet {

namespace {

using namespace std::chrono_literals;
using testing::Answer;

struct SessionTest : ::testing::Test, testing::SandboxedSession {
    testing::CallRecorder calls;

    platform::URLSessionDataTask task(const platform::URLSession& session, std::string method = "GET") {
        return session.dataTask({.url = {testing::gatewayHost, "/"}, .httpMethod = std::move(method)},
                                calls.completion());
    }
};

} // namespace

TEST_F(SessionTest, DeliversOffTheCallersThread) {
    server.enqueue(Answer::complete(200, "{}"));
    const platform::URLSession session(configuration);
    task(session).resume();
    EXPECT_EQ(calls.wait().response->statusCode, 200);
    EXPECT_NE(calls.threadOf(), std::this_thread::get_id());
}

TEST_F(SessionTest, StartsOnceHoweverOftenItIsResumedAndNeverByItself) {
    server.enqueue(Answer::complete(200, "first"));
    server.enqueue(Answer::complete(200, "second"));
    const platform::URLSession session(configuration);
    { const auto neverResumed = task(session, "DELETE"); }
    auto first = task(session);
    first.resume();
    first.resume();
    EXPECT_EQ(calls.wait().data, "first");
    first.resume();
    task(session).resume();
    EXPECT_EQ(calls.wait(1).data, "second");
    // What is no method is refused.
    task(session, "GET / HTTP/1.1\r\nX: ").resume();
    EXPECT_TRUE(calls.wait(2).error);
    EXPECT_EQ(server.requests().size(), 2u);
    EXPECT_EQ(server.connections(), 1u);
}

TEST_F(SessionTest, RunsAStartedCallToItsEndAndThenEndsItsThread) {
    const auto gate = std::make_shared<std::latch>(1);
    server.enqueue({{"HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\n", "{}"}, Answer::Ending::keepOpen, gate});
    std::promise<void> freed;
    auto gone = freed.get_future();
    configuration.networkPath = {new testing::FakeNetworkPath(true),
                                 [&](const testing::FakeNetworkPath* path) {
                                     delete path;
                                     freed.set_value();
                                 }};
    {
        const platform::URLSession session(std::exchange(configuration, {}));
        task(session).resume();
    }
    ASSERT_TRUE(server.waitForRequests(1));
    EXPECT_EQ(calls.count(), 0u);
    gate->count_down();
    EXPECT_EQ(calls.wait().data, "{}");
    EXPECT_EQ(gone.wait_for(30s), std::future_status::ready);
}

TEST_F(SessionTest, StartsACallWhoseSessionIsGoneAndItsDefaultsToo) {
    server.enqueue(Answer::complete(200, "{}"));
    platform::URLSessionConfiguration::setDefaultConfiguration(configuration);
    auto late = [&] { return task(platform::URLSession()); }();
    platform::URLSessionConfiguration::setDefaultConfiguration({});
    late.resume();
    EXPECT_EQ(calls.wait().data, "{}");
}

TEST_F(SessionTest, LetsACompletionFreeTheSessionAndStartAnotherCall) {
    server.enqueue(Answer::complete(200, "first"));
    server.enqueue(Answer::complete(200, "second"));
    auto session = std::make_shared<platform::URLSession>(configuration);
    auto second = std::make_shared<platform::URLSessionDataTask>(task(*session));
    auto first = session->dataTask({.url = {testing::gatewayHost, "/"}},
                                   [session, second](auto...) { second->resume(); });
    session.reset();
    second.reset();
    first.resume();
    EXPECT_EQ(calls.wait().data, "second");
}

TEST_F(SessionTest, SendsALargeBodyWithoutAskingFirst) {
    server.enqueue(Answer::complete(200, "{}"));
    const platform::URLSession session(configuration);
    const std::string body(2 << 20, ' ');
    session
        .dataTask({.url = {testing::gatewayHost, "/"}, .httpMethod = "PUT", .httpBody = body},
                  calls.completion())
        .resume();
    EXPECT_EQ(calls.wait().data, "{}");
    EXPECT_TRUE(server.requests()[0].ends_with("gzip\r\nContent-Length: 2097152\r\n\r\n" + body));
}

TEST_F(SessionTest, TellsItsObserverBeforeTheCompletion) {
    const auto observer = std::make_shared<testing::TrafficLog>();
    configuration.observer = observer;
    server.enqueue(Answer::complete(404, ""));
    const platform::URLSession session(configuration);
    task(session).resume();
    EXPECT_EQ(calls.wait().data, "");
    task(session).resume();
    ASSERT_TRUE(server.waitForRequests(2));
    clock->advance(60s);
    EXPECT_TRUE(calls.wait(1).error);
    // Whoever answers in place of the network.
    configuration.loader = std::make_shared<testing::ScriptedBackend>();
    task(platform::URLSession(configuration)).resume();
    EXPECT_EQ(observer->lines(),
              (std::vector<std::string>{"0 GET https://gateway.test/", "0 ended 404 0 0",
                                        "1 GET https://gateway.test/", "1 ended 0 -1001 60000",
                                        "2 GET https://gateway.test/", "2 ended 200 0 0"}));
}

// ThreadSanitizer finds the data races of this test.
TEST_F(SessionTest, TakesCallsFromSeveralThreadsAtATime) {
    constexpr std::size_t threadCount = 4;
    constexpr std::size_t callsOfEach = 25;
    for (std::size_t i = 0; i < threadCount * callsOfEach; ++i) {
        server.enqueue(Answer::complete(200, "{}"));
    }
    {
        const platform::URLSession session(configuration);
        std::vector<std::thread> threads;
        for (std::size_t i = 0; i < threadCount; ++i) {
            threads.emplace_back([&] {
                for (std::size_t call = 0; call < callsOfEach; ++call) {
                    { const auto dropped = task(session, "DELETE"); }
                    task(session).resume();
                }
            });
        }
        for (auto& thread : threads) {
            thread.join();
        }
    }
    for (std::size_t i = 0; i < threadCount * callsOfEach; ++i) {
        EXPECT_EQ(calls.wait(i).data, "{}");
    }
    EXPECT_EQ(server.requests().size(), threadCount * callsOfEach);
}

// The process ends while a session's thread is in the middle of a call.
TEST(SessionDeathTest, DoesNotKeepTheProcessFromEnding) {
    EXPECT_EXIT(
        {
            auto& sandbox = *new testing::SandboxedSession;
            const platform::URLSession session(sandbox.configuration);
            session.dataTask({.url = {testing::gatewayHost, "/"}}, [](auto...) {}).resume();
            (void)sandbox.server.waitForRequests(1);
            std::remove(sandbox.authority.bundleFile().c_str());
            std::exit(0);
        },
        ::testing::ExitedWithCode(0), "");
}

} // namespace quillet
