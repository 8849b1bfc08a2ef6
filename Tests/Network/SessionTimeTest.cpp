#include "Network/SessionTest.hpp"
#include "Support/ListeningPort.hpp"

#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <iostream>

namespace quillet::testing {

namespace {

using namespace std::chrono_literals;

struct SessionTime : SessionTest {
    /// Starts a POST whose answer comes piece by piece, each a second after the one before.
    void startPost(Answer answer) {
        answer.pace = [clock = clock, seconds = seconds]() mutable {
            clock->advance(1s);
            clock->settle();
            seconds.record(1s);
        };
        server.enqueue(std::move(answer));
        startPost();
    }
    void startPost() { start(platform::URLSession(configuration), {.url = toGateway, .httpMethod = "POST"}); }
    void expectTimeOutAfter(std::chrono::milliseconds left, std::size_t call = 0) {
        clock->advance(left - 1ms);
        clock->settle();
        EXPECT_EQ(calls.count(), call);
        clock->advance(1ms);
        EXPECT_EQ(calls.wait(call).error.value().code, Code::timedOut);
        EXPECT_FALSE(calls.wait(call).data || calls.wait(call).response);
    }

    /// Those that passed during an answer.
    Recorder<std::chrono::seconds> seconds;
};

} // namespace

TEST_F(SessionTime, IsSixtySecondsOfSilenceAfterThePost) {
    startPost();
    server.waitForRequests(1);
    expectTimeOutAfter(60s);
    EXPECT_EQ(server.requests().size(), 1u);
}

TEST_F(SessionTime, IsSixtySecondsOfSilenceBeforeTlsAndOfAttemptsToConnect) {
    const ListeningPort silent;
    configuration.hostMappings[0].port = silent.port();
    startPost();
    expectTimeOutAfter(60s);
    const DeadPort dead;
    const auto path = std::make_shared<FakeNetworkPath>();
    configuration.hostMappings[0].port = dead.port();
    configuration.networkPath = path;
    EXPECT_EQ(std::exchange(configuration.connectTimeout, 20ms), 15s);
    startPost();
    static_cast<void>(path->asked.wait(2));
    expectTimeOutAfter(60s, 1);
}

TEST_F(SessionTime, IsSixtySecondsWhereAByteComesEachSecond) {
    startPost(Answer{{"HTTP/1.1 200 OK\r\n\r\n" + std::string(41, ' ')}}.sliced(1));
    static_cast<void>(seconds.wait(58));
    expectTimeOutAfter(1s);
}

TEST_F(SessionTime, IsEnoughForAKilobyteASecondAfterHalfAMinute) {
    auto answer = Answer::complete(200, "{" + std::string(25 << 10, ' ') + "}").sliced(1 << 10);
    answer.pieces.insert(answer.pieces.begin(), 30, "");
    startPost(answer);
    EXPECT_EQ(calls.wait().data.value().size(), (25u << 10) + 2);
}

TEST_F(SessionTime, OfEachCallIsItsOwn) {
    const platform::URLSession session(configuration);
    start(session);
    start(session, {.url = toGateway, .timeoutInterval = 10s});
    server.waitForRequests(2);
    expectTimeOutAfter(10s);
    expectTimeOutAfter(50s, 1);
}

// The process is stopped, as a phone stops one in the background, until the call's time is over.
TEST(SessionTimeDeathTest, GoesOnWhileTheProcessIsStopped) {
    EXPECT_EXIT(
        {
            SandboxedSession sandbox;
            sandbox.configuration.clock = nullptr;
            CallRecorder calls;
            {
                const platform::URLSession session(sandbox.configuration);
                session
                    .dataTask({.url = toGateway, .timeoutInterval = 1500ms, .httpMethod = "POST"},
                              calls.completion())
                    .resume();
                sandbox.server.waitForRequests(1);
                const auto wake = "(sleep 1.6; kill -CONT " + std::to_string(getpid()) + ") &";
                if (std::system(wake.c_str()) != 0 || std::raise(SIGSTOP) != 0) {
                    std::_Exit(1);
                }
                const auto woken = std::chrono::steady_clock::now();
                std::cerr << static_cast<std::int64_t>(calls.wait().error.value().code)
                          << (std::chrono::steady_clock::now() - woken < 5s ? " at once" : " late");
            }
            std::cerr << ", " << calls.count() << " time, " << sandbox.server.requests().size() << " request";
            std::_Exit(0);
        },
        ::testing::ExitedWithCode(0), "^-1001 at once, 1 time, 1 request$");
}

} // namespace quillet::testing
