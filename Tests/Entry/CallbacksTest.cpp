#include "Support/Thorough.hpp"
#include "Targets.hpp"

#include <QTimer>

#include <ranges>
#include <utility>

namespace quillet::testing {

namespace {

struct Callbacks : AtTargets {
    /// Taps there and has the host react to the first such line. The recorders are nobody else's.
    void react(const Target& target, const std::string& trigger, const std::function<void()>& reaction) {
        bool hasReacted = false;
        const auto listener = [&](const std::string& line) {
            if (line == trigger && !std::exchange(hasReacted, true)) {
                reaction();
            }
        };
        kel::KelAnalyticsManager::shared()->setSink(std::make_shared<RecordingAnalytics>(log, listener));
        host = std::make_shared<RecordingNavigation>(log, listener);
        ASSERT_NO_FATAL_FAILURE(reach(target));
        tapped = target.tapped;
        stage->clickAt(place(tapped));
        ASSERT_TRUE(turnUntil([&] { return hasReacted; }));
        animateFor(std::chrono::milliseconds(800));
        EXPECT_EQ(std::ranges::count(*log, trigger), 1);
        goAway();
    }
    void goAway() {
        kel::KelAnalyticsManager::shared()->setSink(nullptr);
        host.reset();
    }

    QString tapped;
};

} // namespace

TEST_F(Callbacks, MayDoWithTheModuleWhatTheyLike) {
    const std::pair<const char*, std::function<void()>> reactions[] = {
        {"removes the module and goes",
         [&] {
             stage->popAll();
             goAway();
         }},
        {"leaves with an animation", [&] { stage->popSlowly(std::chrono::milliseconds(400)); }},
        {"opens another module", [&] { open(); }},
        {"taps again",
         [&] {
             if (stage->shows(tapped)) {
                 stage->clickAt(place(tapped));
             }
         }},
        {"runs an event loop", [&] { animateFor(std::chrono::milliseconds(100)); }},
        {"removes the module within an event loop",
         [&] {
             QTimer::singleShot(0, &stage->window(), [&] { stage->popAll(); });
             animateFor(std::chrono::milliseconds(100));
         }},
    };
    // Not from within the host's own call of present(), during which a StackView takes no other.
    auto all = targets();
    all.push_back({"send, failing", target("failure").replies, {viewOrders}, send, {"screen Error"}, 3});
    int cases = 0;
    std::size_t pair = 0;
    for (const auto& [name, reaction] : reactions) {
        for (const Target& target : all) {
            for (const std::string& line : target.lines | std::views::take(target.isSwitch ? 1 : 9)) {
                // One of three in the quick form, at other places for each reaction.
                if (pair++ % thorough(3, 1) == 0) {
                    SCOPED_TRACE(target.name + (": " + line) + ": " + name);
                    ASSERT_NO_FATAL_FAILURE(react(target, line, reaction));
                    ++cases;
                }
            }
        }
        // It opens anew.
        ASSERT_NO_FATAL_FAILURE(reach(target("cart")));
    }
    RecordProperty("cases", cases);
}

} // namespace quillet::testing
