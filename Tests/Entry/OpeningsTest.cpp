#include "Support/FaultServer.hpp"
#include "Support/ModuleTest.hpp"
#include "Support/Thorough.hpp"

#include <algorithm>
#include <array>
#include <atomic>
#include <filesystem>
#include <functional>

// Where Qt lets a program see each object that is made and destroyed.
extern quintptr qtHookData[];

namespace quillet::testing {

namespace {

enum Hook { objectMade = 3, objectDestroyed = 4 };

std::atomic<int> objects = 0;

int entries(const char* folder) {
    const std::filesystem::directory_iterator all(folder);
    return static_cast<int>(std::distance(begin(all), end(all)));
}

/// How many objects, threads and files the process has, which could be left behind.
using Possessions = std::array<int, 3>;

struct Openings : ModuleTest {
    Openings() {
        qtHookData[objectMade] = reinterpret_cast<quintptr>(+[](QObject*) { ++objects; });
        qtHookData[objectDestroyed] = reinterpret_cast<quintptr>(+[](QObject*) { --objects; });
    }
    ~Openings() override {
        qtHookData[objectMade] = 0;
        qtHookData[objectDestroyed] = 0;
        platform::URLSessionConfiguration::setDefaultConfiguration({});
    }

    /// Opens the module as often and removes it, each time at another step.
    void open(std::size_t rounds) {
        const std::vector<QString> steps{viewOrders, send, goToCart};
        for (std::size_t round = 0; round < rounds; ++round) {
            SCOPED_TRACE(round);
            const auto screen = ModuleTest::open();
            if (const auto step = round % 4; step > 0) {
                clickThrough({steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(step - 1)},
                             steps[step - 1]);
            }
            stage->popAll();
            ASSERT_TRUE(turnUntil([&] { return screen.expired(); }));
        }
    }

    /// The first few rounds make what is then kept.
    void expectNothingLeft(std::size_t rounds, const std::function<void(std::size_t)>& play) {
        ASSERT_NO_FATAL_FAILURE(play(8));
        // Sessions' threads end by themselves, after their screens; contexts of QML are garbage before they
        // go.
        const auto current = [&] {
            qmlEngine(&stage->stack())->collectGarbage();
            return Possessions{objects, entries("/proc/self/task"), entries("/proc/self/fd")};
        };
        Possessions before;
        ASSERT_TRUE(turnUntil([&] { return std::exchange(before, current()) == before; }));
        ASSERT_NO_FATAL_FAILURE(play(rounds));
        EXPECT_TRUE(turnUntil([&] { return std::ranges::equal(current(), before, std::less_equal()); }))
            << ::testing::PrintToString(current()) << " in place of " << ::testing::PrintToString(before);
        RecordProperty("cases", static_cast<int>(rounds));
    }
};

} // namespace

TEST_F(Openings, LeaveNothingBehind) {
    expectNothingLeft(thorough(50, 10'000), [&](std::size_t rounds) { open(rounds); });
}

TEST_F(Openings, LeaveNothingBehindOverTheNetwork) {
    const std::string gateway = Starter::create("", "", {}, nullptr)->domainUrl();
    const TestAuthority authority;
    // One answer for all calls: those of a screen that was removed at once may come when the next one has
    // called.
    std::string answer = sampleBody(Call::associate);
    for (const Call call : {Call::getOpenOrders, Call::checkout}) {
        answer.back() = ',';
        answer += sampleBody(call).substr(1);
    }
    expectNothingLeft(thorough(20, 300), [&](std::size_t rounds) {
        // A server keeps its connections to its end.
        for (std::size_t round = 0; round < rounds; round += 10) {
            FaultServer server(authority.serverContext(gateway));
            for (int request = 0; request < 40; ++request) {
                server.enqueue(Answer::complete(200, answer));
            }
            platform::URLSessionConfiguration::setDefaultConfiguration(
                {.caBundleFile = authority.bundleFile(),
                 .hostMappings = {{.host = gateway, .address = "127.0.0.1", .port = server.port()}}});
            open(std::min<std::size_t>(10, rounds - round));
        }
    });
}

} // namespace quillet::testing
