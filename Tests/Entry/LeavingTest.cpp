#include "Targets.hpp"

#include <QPointer>

namespace quillet::testing {

namespace {

using std::chrono::seconds;
using ::testing::Each;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

/// The host does away with the module, or with its delegate.
struct Leaving : AtTargets, ::testing::WithParamInterface<std::string> {
    /// Calls that are on their way.
    [[nodiscard]] std::vector<Target> calls() const {
        const auto late = [](Call call, std::int64_t status) {
            const Reply reply{.status = status, .body = sampleBody(call), .after = seconds(5)};
            return std::pair(call, std::deque{reply});
        };
        const std::pair timesOut(Call::associate, std::deque{Reply{.status = 504}});
        return {
            {"associates", {late(Call::associate, 200)}, {}, {}, {}, 1},
            {"gets orders", {late(Call::getOpenOrders, 200)}, {}, {}, {}, 2},
            {"fails", {timesOut, late(Call::getOpenOrders, 500)}, {}, {}, {}, 2},
            {"checks out", {late(Call::checkout, 200)}, {viewOrders, send}, {}, {}, 3},
            {"fails to check out", {late(Call::checkout, 500)}, {viewOrders, send}, {}, {}, 3},
        };
    }

    void end() {
        page = stage->stack()
                   .property("currentItem")
                   .value<QQuickItem*>()
                   ->property("viewController")
                   .value<QObject*>();
        if (isMoving) {
            stage->popSlowly(seconds(1));
        } else if (GetParam() == "AllPages") {
            stage->popAll();
        } else if (leaves) {
            stage.reset();
        } else {
            host.reset();
        }
    }

    /// Taps what is left of the target: StackView blocks input on moving pages, but not a screen reader's.
    void tryToTap(const QString& tapped) {
        if (isMoving) {
            stage->tapRepeatedly(stage->middle(tapped), 1, false);
            stage->tapRepeatedly(stage->middle(tapped), 1, true);
        }
        stage->pressByScreenReader(tapped);
    }

    void leave(const Target& target, bool isAnswerQueued) {
        SCOPED_TRACE(target.name + std::string(isAnswerQueued ? ", answered" : ""));
        ASSERT_NO_FATAL_FAILURE(reach(target));
        if (isAnswerQueued) {
            backend->clock()->advance(seconds(5));
        }
        // A dialog that was tapped is still fading then.
        const bool isDialog = stage->shows(closeIcon);
        if (isDialog) {
            stage->clickAt(place(target.tapped));
        }
        log->clear();
        const std::size_t requests = backend->requests().size();
        end();
        backend->clock()->advance(seconds(5));
        if (!isDialog && !target.tapped.isEmpty() && stage && stage->shows(target.tapped)) {
            tryToTap(target.tapped);
        }
        ASSERT_NO_FATAL_FAILURE(animateFor(std::chrono::milliseconds(710)));
        EXPECT_EQ(isMoving, stage && !settled());
        ASSERT_TRUE(turnUntil([&] { return !stage || (settled() && page.isNull() == leaves); }));
        if (leaves) {
            EXPECT_THAT(*log, IsEmpty());
            EXPECT_EQ(backend->requests().size(), requests);
            EXPECT_FALSE(stage && stage->shows(closeIcon));
        } else {
            EXPECT_THAT(*log, Each(Not(StartsWith("navigate"))));
        }
    }

    const bool isMoving = GetParam() == "Page";
    const bool leaves = GetParam() != "Delegate";
    QPointer<QObject> page;
};

} // namespace

TEST_P(Leaving, EndsAtOnceWhateverIsOnItsWay) {
    for (const Target& call : calls()) {
        ASSERT_NO_FATAL_FAILURE(leave(call, false));
        ASSERT_NO_FATAL_FAILURE(leave(call, true));
    }
    for (const Target& target : targets()) {
        ASSERT_NO_FATAL_FAILURE(leave(target, false));
    }
    RecordProperty("cases", static_cast<int>(2 * calls().size() + targets().size()));
}

INSTANTIATE_TEST_SUITE_P(, Leaving, ::testing::Values("Page", "AllPages", "Window", "Delegate"),
                         [](const auto& parameter) { return parameter.param; });

} // namespace quillet::testing
