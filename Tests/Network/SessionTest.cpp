#include "Network/SessionTest.hpp"
#include "Quillet/Testing/ScriptedBackend.hpp"

#include <gtest/gtest.h>

#include <future>
#include <latch>

namespace quillet::testing {

using namespace std::chrono_literals;

TEST_F(SessionTest, StartsOnceOffTheCallersThreadHoweverOftenItIsResumedAndNeverByItself) {
    server.enqueue(Answer::complete(200, "first"));
    server.enqueue(Answer::complete(200, "for another call"));
    server.enqueue(Answer::complete(200, "second"));
    const platform::URLSession session(configuration);
    const platform::URLRequest request{.url = toGateway};
    { const auto neverResumed = session.dataTask(request, calls.completion()); }
    auto first = session.dataTask(request, calls.completion());
    first.resume();
    first.resume();
    EXPECT_EQ(calls.wait().data, "first");
    EXPECT_NE(calls.threadOf(), std::this_thread::get_id());
    first.resume();
    // A completion may start another call.
    session.dataTask(request, [&](auto&&...) { start(session); }).resume();
    EXPECT_EQ(calls.wait(1).data, "second");
    // What is no method is refused.
    EXPECT_TRUE(exchange(session, {.url = toGateway, .httpMethod = "GET / HTTP/1.1\r\nX: "}).error);
    EXPECT_EQ(server.requests().size(), 3u);
    EXPECT_EQ(server.connections(), 1u);
}

TEST_F(SessionTest, RunsAStartedCallToItsEndAndThenEndsItsThread) {
    const auto gate = std::make_shared<std::latch>(1);
    server.enqueue({{"HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\n", "{}"}, Answer::Ending::keepOpen, [gate] {
                        gate->wait();
                    }});
    std::promise<void> freed;
    configuration.networkPath = {new FakeNetworkPath, [&](const FakeNetworkPath* path) {
                                     delete path;
                                     freed.set_value();
                                 }};
    start(platform::URLSession(std::exchange(configuration, {})));
    server.waitForRequests(1);
    EXPECT_EQ(calls.count(), 0u);
    gate->count_down();
    EXPECT_EQ(calls.wait().data, "{}");
    EXPECT_EQ(freed.get_future().wait_for(30s), std::future_status::ready);
}

TEST_F(SessionTest, SendsALargeBodyWithoutAskingFirst) {
    server.enqueue(Answer::complete(200, "{}"));
    const std::string body(2 << 20, ' ');
    EXPECT_EQ(exchange(platform::URLSession(configuration),
                       {.url = toGateway, .httpMethod = "PUT", .httpBody = body})
                  .data,
              "{}");
    EXPECT_TRUE(server.requests()[0].ends_with("gzip\r\nContent-Length: 2097152\r\n\r\n" + body));
}

TEST_F(SessionTest, TellsItsObserverBeforeTheCompletion) {
    const auto observer = std::make_shared<TrafficLog>();
    configuration.observer = observer;
    server.enqueue(Answer::complete(404, ""));
    const platform::URLSession session(configuration);
    const platform::URLRequest get{.url = toGateway, .httpMethod = "GET"};
    EXPECT_EQ(exchange(session, get).data, "");
    start(session, get);
    server.waitForRequests(2);
    clock->advance(60s);
    EXPECT_TRUE(calls.wait(1).error);
    // Whoever answers in place of the network.
    configuration.loader = std::make_shared<ScriptedBackend>();
    start(platform::URLSession(configuration), get);
    EXPECT_EQ(observer->lines.all(),
              (std::vector<std::string>{"0 GET https://gateway.test/", "0 ended 404 0 0",
                                        "1 GET https://gateway.test/", "1 ended 0 -1001 60000",
                                        "2 GET https://gateway.test/", "2 ended 200 0 0"}));
}

// ThreadSanitizer finds the data races of this test.
TEST_F(SessionTest, TakesCallsFromSeveralThreadsAtATime) {
    constexpr std::size_t all = 100;
    for (std::size_t i = 0; i < all; ++i) {
        server.enqueue(Answer::complete(200, "{}"));
    }
    {
        const platform::URLSession session(configuration);
        const auto work = [&] {
            for (std::size_t call = 0; call < all / 4; ++call) {
                { const auto dropped = session.dataTask({.url = toGateway}, calls.completion()); }
                start(session);
            }
        };
        std::vector<std::future<void>> threads(4);
        std::ranges::generate(threads, [&] { return std::async(std::launch::async, work); });
        threads.clear();
    }
    for (std::size_t i = 0; i < all; ++i) {
        EXPECT_EQ(calls.wait(i).data, "{}");
    }
    EXPECT_EQ(server.requests().size(), all);
}

} // namespace quillet::testing
