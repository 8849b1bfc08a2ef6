#include "Network/SandboxedServices.hpp"
#include "Support/FakeNetworkPath.hpp"
#include "Support/SilentPort.hpp"

#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <iostream>
#include <semaphore>

namespace quillet {

namespace {

using namespace std::chrono_literals;
using testing::Answer;

/// Lets a server send a piece of its answer each second.
struct Pace {
    std::counting_semaphore<> sent{0};
    std::counting_semaphore<> wanted{0};
};

struct SessionTime : ::testing::Test, testing::SandboxedSession {
    ~SessionTime() override { pace->wanted.release(1'000); }

    /// Starts a checkout whose answer comes piece by piece.
    void startCheckout(Answer answer) {
        answer.pace = [pace = pace] {
            pace->sent.release();
            pace->wanted.acquire();
        };
        server.enqueue(std::move(answer));
        startCheckout();
    }
    /// A second in which a piece comes.
    void passSecond() {
        ASSERT_TRUE(pace->sent.try_acquire_for(30s));
        clock->advance(1s);
        clock->settle();
        EXPECT_EQ(results.count(), 0u);
        pace->wanted.release();
    }
    void startCheckout() {
        testing::Services(configuration).checkout().checkout([this](const CheckoutResult& result) {
            results.record(result);
        });
    }
    void expectTimeOutAfter(std::chrono::milliseconds left) {
        clock->advance(left - 1ms);
        clock->settle();
        EXPECT_EQ(results.count(), 0u);
        clock->advance(1ms);
        EXPECT_EQ(platformErrorCode(results.wait().error.value()), -1001);
        EXPECT_EQ(results.wait().httpStatusCode, 0);
        EXPECT_FALSE(results.wait().checkoutResponse);
    }

    testing::Recorder<CheckoutResult> results;
    std::shared_ptr<Pace> pace = std::make_shared<Pace>();
};

} // namespace

TEST_F(SessionTime, IsSixtySecondsOfSilenceBeforeTls) {
    const testing::SilentPort silent;
    configuration.hostMappings[0].port = silent.port();
    startCheckout();
    expectTimeOutAfter(60s);
}

TEST_F(SessionTime, IsSixtySecondsOfAttemptsToConnect) {
    const testing::SilentPort silent(testing::SilentPort::Kind::dropping);
    const auto path = std::make_shared<testing::FakeNetworkPath>(true);
    configuration.hostMappings[0].port = silent.port();
    configuration.networkPath = path;
    EXPECT_EQ(std::exchange(configuration.connectTimeout, 20ms), 15s);
    startCheckout();
    static_cast<void>(path->asked.wait(2));
    expectTimeOutAfter(60s);
}

TEST_F(SessionTime, IsSixtySecondsOfSilenceAfterThePost) {
    startCheckout();
    ASSERT_TRUE(server.waitForRequests(1));
    expectTimeOutAfter(60s);
    EXPECT_EQ(server.requests().size(), 1u);
}

TEST_F(SessionTime, IsSixtySecondsWhereAByteComesEachSecond) {
    startCheckout(Answer{{"HTTP/1.1 200 OK\r\n\r\n" + std::string(100, ' ')}}.sliced(1));
    for (int second = 0; second < 59; ++second) {
        passSecond();
    }
    expectTimeOutAfter(1s);
}

TEST_F(SessionTime, IsEnoughForAKilobyteASecondAfterHalfAMinute) {
    auto answer = Answer::complete(200, "{" + std::string(25 << 10, ' ') + "}").sliced(1 << 10);
    answer.pieces.insert(answer.pieces.begin(), "");
    startCheckout(answer);
    ASSERT_TRUE(server.waitForRequests(1));
    clock->advance(30s);
    for (std::size_t piece = 1; piece < answer.pieces.size(); ++piece) {
        passSecond();
    }
    EXPECT_EQ(results.wait().httpStatusCode, 200);
    EXPECT_FALSE(results.wait().error);
}

TEST_F(SessionTime, OfEachCallIsItsOwn) {
    testing::CallRecorder calls;
    const platform::URLSession session(configuration);
    for (const auto timeout : {60'000ms, 10'000ms}) {
        session.dataTask({.url = {testing::gatewayHost, "/"}, .timeoutInterval = timeout}, calls.completion())
            .resume();
    }
    ASSERT_TRUE(server.waitForRequests(2));
    clock->advance(10s);
    EXPECT_EQ(calls.wait().error->code, platform::URLError::Code::timedOut);
    clock->advance(49'999ms);
    clock->settle();
    EXPECT_EQ(calls.count(), 1u);
    clock->advance(1ms);
    EXPECT_EQ(calls.wait(1).error->code, platform::URLError::Code::timedOut);
}

// The process is stopped, as a phone stops one in the background, until the call's time is over.
TEST(SessionTimeDeathTest, GoesOnWhileTheProcessIsStopped) {
    EXPECT_EXIT(
        {
            testing::SandboxedSession sandbox;
            sandbox.configuration.clock = nullptr;
            testing::CallRecorder calls;
            {
                const platform::URLSession session(sandbox.configuration);
                session
                    .dataTask(
                        {.url = {testing::gatewayHost, "/"}, .timeoutInterval = 1500ms, .httpMethod = "POST"},
                        calls.completion())
                    .resume();
                const bool isSent = sandbox.server.waitForRequests(1);
                const auto wake = "(sleep 1.6; kill -CONT " + std::to_string(getpid()) + ") &";
                if (!isSent || std::system(wake.c_str()) != 0 || std::raise(SIGSTOP) != 0) {
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

} // namespace quillet
