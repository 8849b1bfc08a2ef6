#include "Support/Thorough.hpp"
#include "Targets.hpp"

#include <QGuiApplication>
#include <QPointer>

#include <cstdlib>
#include <memory>

namespace quillet::testing {

namespace {

using std::chrono::seconds;
using ::testing::Each;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

/// The host does away with the module, with its delegate, or with the application.
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
        if (endsApplication) {
            GTEST_FLAG_SET(death_test_style, "threadsafe");
            // What exit() leaves behind is no leak, and much of it is reachable from QML's heap alone.
            const QByteArray options = qgetenv("ASAN_OPTIONS");
            qputenv("ASAN_OPTIONS", GetParam() == "Exit" ? options + ":detect_leaks=0" : options);
            EXPECT_EXIT(endApplication(target, isAnswerQueued), ::testing::ExitedWithCode(EXIT_SUCCESS), "");
            qputenv("ASAN_OPTIONS", options);
        } else {
            leaveThere(target, isAnswerQueued);
        }
    }

    /// Whether a dialog that was tapped is still fading then.
    bool goThere(const Target& target, bool isAnswerQueued) {
        reach(target);
        if (isAnswerQueued) {
            backend->clock()->advance(seconds(5));
        }
        const bool isDialog = stage->shows(closeIcon);
        if (isDialog) {
            stage->clickAt(place(target.tapped));
        }
        log->clear();
        return isDialog;
    }

    /// Ends the process with 0 where nothing is told to anybody after the end of the application. A process
    /// may also be left without any end of it, as exit() does.
    [[noreturn]] void endApplication(const Target& target, bool isAnswerQueued) {
        const auto neverShown = Starter::create("token", "idp", {}, host)->createRootViewController();
        goThere(target, isAnswerQueued);
        if (GetParam() == "Application") {
            stage.reset();
            std::destroy_at(qApp);
        }
        backend->clock()->advance(seconds(60));
        std::exit(log->empty() && !HasFailure() ? EXIT_SUCCESS : EXIT_FAILURE);
    }

    void leaveThere(const Target& target, bool isAnswerQueued) {
        const bool isDialog = goThere(target, isAnswerQueued);
        ASSERT_FALSE(HasFatalFailure());
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
    const bool endsApplication = GetParam() == "Application" || GetParam() == "Exit";
    QPointer<QObject> page;
};

} // namespace

TEST_P(Leaving, EndsAtOnceWhateverIsOnItsWay) {
    std::vector<std::pair<Target, bool>> cases;
    for (const Target& call : calls()) {
        cases.insert(cases.end(), {{call, false}, {call, true}});
    }
    for (const Target& target : targets()) {
        cases.emplace_back(target, false);
    }
    if (endsApplication) {
        cases.emplace_back(Target{"over the network", {}, {}, {}, {}, 0, false, true}, false);
    }
    // A process takes its time.
    const std::size_t step = endsApplication ? thorough(3, 1) : 1;
    for (std::size_t i = 0; i < cases.size(); i += step) {
        ASSERT_NO_FATAL_FAILURE(leave(cases[i].first, cases[i].second));
    }
    RecordProperty("cases", static_cast<int>((cases.size() + step - 1) / step));
}

INSTANTIATE_TEST_SUITE_P(, Leaving,
                         ::testing::Values("Page", "AllPages", "Window", "Delegate", "Application", "Exit"),
                         [](const auto& parameter) { return parameter.param; });

} // namespace quillet::testing
