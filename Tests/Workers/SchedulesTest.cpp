#include "Quillet/Backend.hpp"
#include "Quillet/Testing/ScriptedBackend.hpp"
#include "Support/SandboxedSession.hpp"
#include "Support/Thorough.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <random>
#include <thread>

namespace quillet::testing {

namespace {

using namespace std::chrono_literals;

int upTo(int most, std::mt19937& random) {
    return std::uniform_int_distribution(0, most)(random);
}

/// A worker, its delegate, and the statuses of its calls: those that it must deliver, and those that came.
struct Caller final : CheckoutWorkerDelegate {
    void willCheckout() override {}
    void didCheckout(const std::shared_ptr<const CheckoutResult>& result) override {
        EXPECT_EQ(std::this_thread::get_id(), main);
        // Over the network a call that is answered may have timed out before.
        came.push_back(result->httpStatusCode == 200 ? 0 : result->httpStatusCode);
    }

    std::thread::id main = std::this_thread::get_id();
    std::shared_ptr<Executable> worker;
    /// Lives on without its owner while the thread of an answer uses it.
    std::weak_ptr<Executable> watched;
    std::vector<std::int64_t> due;
    std::vector<std::int64_t> came;
};

/// Workers that start, end and are told in any order, while the clock and with it the answers run on another
/// thread. `nextAnswer` prepares the answer to the next call and returns its status.
struct Schedule {
    std::mt19937 random;
    ManualClock& clock;
    std::function<std::int64_t(std::mt19937&)> nextAnswer;
    std::vector<std::shared_ptr<Caller>> callers = {};

    void drain() {
        std::vector<std::pair<Caller*, std::size_t>> gone;
        for (const auto& caller : callers) {
            if (caller->watched.expired()) {
                gone.emplace_back(caller.get(), caller->came.size());
            }
        }
        platform::mainQueue().drain();
        for (const auto& [caller, came] : gone) {
            EXPECT_EQ(caller->came.size(), came) << "from a worker that is gone";
        }
    }

    void step() {
        Caller& caller = *callers[static_cast<std::size_t>(upTo(2, random))];
        switch (upTo(5, random)) {
        case 0:
            caller.worker = upTo(2, random) > 0 ? std::move(caller.worker) : nullptr;
            break;
        case 1:
            drain();
            break;
        case 2:
            clock.advance(std::chrono::seconds(upTo(70, random)));
            break;
        default:
            if (caller.worker) {
                caller.due.push_back(nextAnswer(random));
                caller.worker->execute();
            }
        }
    }

    void run() {
        const BackendClient client({"token", "idp"}, {"cart", 7, "PE"}, gatewayHost);
        for (int count = 0; count < 3; ++count) {
            auto caller = std::make_shared<Caller>();
            caller->worker = client.checkout(caller);
            caller->watched = caller->worker;
            callers.push_back(std::move(caller));
        }
        std::thread network([jumps = upTo(20, random), this] {
            std::mt19937 others(static_cast<unsigned>(jumps));
            for (int jump = 0; jump < jumps; ++jump) {
                clock.advance(std::chrono::seconds(upTo(20, others)));
                std::this_thread::yield();
            }
        });
        for (int steps = upTo(20, random); steps >= 0; --steps) {
            step();
        }
        network.join();
        clock.advance(60s);
        const auto deadline = std::chrono::steady_clock::now() + 30s;
        for (const auto& caller : callers) {
            while (caller->worker && caller->came.size() < caller->due.size() &&
                   std::chrono::steady_clock::now() < deadline) {
                drain();
            }
        }
        drain();
        for (const auto& caller : callers) {
            std::ranges::sort(caller->due);
            std::ranges::sort(caller->came);
            EXPECT_TRUE(std::ranges::includes(caller->due, caller->came));
            EXPECT_TRUE(!caller->worker || caller->due == caller->came)
                << ::testing::PrintToString(caller->came) << " in place of "
                << ::testing::PrintToString(caller->due);
        }
    }
};

/// Runs schedules of a fresh seed each, which is told where one fails.
void runAll(std::size_t whole, const std::function<void(std::mt19937)>& run) {
    const unsigned first = std::random_device()();
    for (unsigned seed = first; seed != first + whole && !::testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        run(std::mt19937(seed));
    }
    ScriptedBackend::uninstall();
    ::testing::Test::RecordProperty("cases", static_cast<int>(whole));
}

} // namespace

TEST(Schedules, DeliverEachAnswerOnce) {
    runAll(thorough(500, 10'000), [](std::mt19937 random) {
        const auto backend = ScriptedBackend::install();
        std::int64_t status = 1000;
        Schedule{random, *backend->clock(),
                 [&](std::mt19937& dice) {
                     const bool answers = upTo(3, dice) > 0;
                     const std::chrono::seconds after(answers ? upTo(59, dice) * upTo(1, dice) : 60);
                     backend->script(Call::checkout, {Reply{.status = ++status, .after = after}});
                     return answers ? status : 0;
                 }}
            .run();
    });
}

TEST(Schedules, DeliverOneResultOfEachCallOverTheNetwork) {
    runAll(thorough(20, 500), [](std::mt19937 random) {
        SandboxedSession sandbox;
        platform::URLSessionConfiguration::setDefaultConfiguration(sandbox.configuration);
        Schedule{random, *sandbox.clock,
                 [&](std::mt19937& dice) {
                     if (upTo(3, dice) > 0) {
                         sandbox.server.enqueue(Answer::complete(200, sampleBody(Call::checkout)));
                     }
                     return 0;
                 }}
            .run();
    });
}

} // namespace quillet::testing
