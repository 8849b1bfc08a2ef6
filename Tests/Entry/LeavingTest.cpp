#include "Support/ModuleOnStage.hpp"

#include <QPointer>

#include <ostream>

namespace quillet::testing {

namespace {

using ::testing::Each;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

/// What the host does away with.
enum class Ending { page, allPages, window, delegate };
const Ending endings[] = {Ending::page, Ending::allPages, Ending::window, Ending::delegate};
const std::string names[] = {"Page", "AllPages", "Window", "Delegate"};

/// What is on its way then.
enum class Pending { answer, queuedAnswer, fadeOfATap, screenReader };

struct Moment {
    const char* name;
    Pending pending;
    /// Where the sample's answer is not the one.
    std::vector<std::pair<Call, Reply>> replies;
    /// The requests until then.
    std::size_t requests;
    /// Clicked until then.
    std::vector<QString> clicks;
    /// Pressed by a screen reader after the end: StackView blocks input on moving pages, but not this.
    QString pressed = {};
};

struct Leaving : ModuleOnStage, ::testing::WithParamInterface<Ending> {
    std::vector<Moment> moments() {
        using enum Pending;
        const auto late = [](Call call, std::int64_t status) {
            return std::pair(
                call, Reply{.status = status, .body = sampleBody(call), .after = std::chrono::seconds(5)});
        };
        const std::pair fails(Call::checkout, Reply{.status = 500});
        const std::pair timesOut(Call::associate, Reply{.status = 504});
        std::vector<Moment> all;
        for (const Pending pending : {answer, queuedAnswer}) {
            all.push_back({"associates", pending, {late(Call::associate, 200)}, 1, {}});
            all.push_back({"gets orders", pending, {late(Call::getOpenOrders, 200)}, 2, {}});
            all.push_back({"fails", pending, {timesOut, late(Call::getOpenOrders, 500)}, 2, {}});
            all.push_back({"checks out", pending, {late(Call::checkout, 200)}, 3, {viewOrders, send}});
            all.push_back(
                {"fails to check out", pending, {late(Call::checkout, 500)}, 3, {viewOrders, send}});
        }
        all.push_back({"summary's dialog", fadeOfATap, {}, 2, {viewOrders}});
        all.push_back({"checkout's retry", fadeOfATap, {fails}, 3, {viewOrders, send, retry}});
        all.push_back({"checkout's way home", fadeOfATap, {fails}, 3, {viewOrders, send, closeIcon}});
        all.push_back({"sends", screenReader, {}, 2, {viewOrders}, send});
        all.push_back({"retries", screenReader, {timesOut}, 2, {}, retry});
        all.push_back({"goes to cart", screenReader, {}, 3, {viewOrders, send}, goToCart});
        all.push_back({"hides section", screenReader, {}, 3, {viewOrders, send}, "Productos enviados"});
        return all;
    }

    void reach(const Moment& moment) {
        backend = ScriptedBackend::install();
        host = std::make_shared<RecordingNavigation>(log);
        stage = stage ? std::move(stage) : std::make_unique<Stage>();
        for (const auto& [call, reply] : moment.replies) {
            backend->script(call, {reply});
        }
        open();
        clickThrough(moment.clicks);
        ASSERT_TRUE(turnUntil([&] { return backend->requests().size() == moment.requests && settled(); }));
        ASSERT_TRUE(moment.pressed.isEmpty() || comesToShow(moment.pressed));
        if (moment.pending == Pending::queuedAnswer) {
            backend->clock()->advance(std::chrono::seconds(5));
        }
        page = stage->stack()
                   .property("currentItem")
                   .value<QQuickItem*>()
                   ->property("viewController")
                   .value<QObject*>();
        log->clear();
    }

    void end() {
        switch (GetParam()) {
        case Ending::page:
            stage->popSlowly(std::chrono::seconds(1));
            break;
        case Ending::allPages:
            stage->popAll();
            break;
        case Ending::window:
            stage.reset();
            break;
        case Ending::delegate:
            host.reset();
            break;
        }
    }

    QPointer<QObject> page;
};

} // namespace

TEST_P(Leaving, EndsAtOnceWhateverIsOnItsWay) {
    const auto all = moments();
    for (const Moment& moment : all) {
        SCOPED_TRACE(moment.name);
        SCOPED_TRACE(static_cast<int>(moment.pending));
        ASSERT_NO_FATAL_FAILURE(reach(moment));
        const bool leaves = GetParam() != Ending::delegate;
        const bool isMoving = GetParam() == Ending::page;
        end();
        backend->clock()->advance(std::chrono::seconds(5));
        if (!moment.pressed.isEmpty() && (isMoving || !leaves)) {
            for (const bool byFinger : {false, true}) {
                if (isMoving) {
                    stage->tapRepeatedly(stage->middle(moment.pressed), 1, byFinger);
                }
            }
            stage->pressByScreenReader(moment.pressed);
        }
        // As long as a dialog's fade, which has begun before.
        ASSERT_NO_FATAL_FAILURE(animateFor(std::chrono::milliseconds(710)));
        EXPECT_EQ(isMoving, stage && !settled());
        ASSERT_TRUE(turnUntil([&] { return !stage || (settled() && page.isNull() == leaves); }));

        EXPECT_EQ(page.isNull(), leaves);
        if (leaves) {
            EXPECT_THAT(taken(log), IsEmpty());
            EXPECT_EQ(backend->requests().size(), moment.requests);
            EXPECT_FALSE(stage && stage->shows(closeIcon));
        } else {
            EXPECT_THAT(taken(log), Each(Not(StartsWith("navigate"))));
        }
        if (stage) {
            stage->popAll();
        }
    }
    RecordProperty("cases", static_cast<int>(all.size()));
}

INSTANTIATE_TEST_SUITE_P(, Leaving, ::testing::ValuesIn(endings),
                         [](const auto& parameter) { return names[static_cast<int>(parameter.param)]; });

} // namespace quillet::testing
