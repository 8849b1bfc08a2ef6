#include "Views/Dialogs/Dialog.hpp"
#include "Quillet/Testing/RecordingHost.hpp"
#include "Support/HandDrivenAnimating.hpp"
#include "Support/Stage.hpp"

#include <gmock/gmock.h>

namespace quillet::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct DialogTest : ::testing::Test {
    /// An action that records whether the dialog was still on screen when it ran.
    std::function<void()> action(const std::string& name) {
        return [this, name] { log->push_back(name + (dialog && dialog->isOnScreen() ? " too early" : "")); };
    }

    Log log = makeLog();
    std::shared_ptr<HandDrivenAnimating> animating = std::make_shared<HandDrivenAnimating>();
    std::unique_ptr<Dialog> dialog =
        std::make_unique<Dialog>(DialogPresenter{"Title", "Message", "Action"}, animating,
                                 DialogActions{action("button"), action("background"), action("close")});
};

} // namespace

TEST_F(DialogTest, FadesFirstAndThenRunsTheActionOfTheTouch) {
    const std::pair<void (Dialog::*)(), std::string> touches[] = {{&Dialog::touchButton, "button"},
                                                                  {&Dialog::touchBackground, "background"},
                                                                  {&Dialog::touchCloseIcon, "close"}};
    for (const auto& [touch, name] : touches) {
        SCOPED_TRACE(name);
        dialog =
            std::make_unique<Dialog>(DialogPresenter{}, animating,
                                     DialogActions{action("button"), action("background"), action("close")});
        animating->running.clear();
        (dialog.get()->*touch)();
        ASSERT_EQ(animating->running.size(), 1u);
        EXPECT_EQ(animating->running[0].duration, std::chrono::milliseconds(700));
        EXPECT_EQ(dialog->alpha(), 1);
        animating->running[0].step(0.25);
        EXPECT_DOUBLE_EQ(dialog->alpha(), 0.75);
        animating->running[0].step(1);
        EXPECT_DOUBLE_EQ(dialog->alpha(), 0);
        EXPECT_THAT(taken(log), IsEmpty());
        animating->running[0].completion();
        EXPECT_FALSE(dialog->isOnScreen());
        EXPECT_THAT(taken(log), ElementsAre(name));
    }
}

TEST_F(DialogTest, AnswersTwoQuickTouchesTwiceAndNeverBrightensAgain) {
    dialog->touchBackground();
    animating->running[0].step(0.5);
    dialog->touchButton();
    animating->running[1].step(0.1);
    animating->running[0].step(0.6);
    animating->running[1].step(0.2);
    EXPECT_DOUBLE_EQ(dialog->alpha(), 0.4);
    animating->running[0].finish();
    animating->running[1].finish();
    EXPECT_THAT(taken(log), ElementsAre("background", "button"));
}

TEST_F(DialogTest, ComesInFromWhereTheOneThatItReplacesHasFadedTo) {
    Dialog next(DialogPresenter{}, animating, {});
    EXPECT_EQ(next.firstAlpha(), 0);
    dialog->touchButton();
    animating->running[0].step(0.25);
    next.replace(*dialog);
    EXPECT_DOUBLE_EQ(next.firstAlpha(), 0.75);
    animating->running[0].finish();
    next.replace(*dialog);
    EXPECT_EQ(next.firstAlpha(), 0);
}

TEST_F(DialogTest, RunsTheActionThoughTheDialogIsGoneByThen) {
    dialog->touchButton();
    dialog.reset();
    animating->running[0].finish();
    EXPECT_THAT(taken(log), ElementsAre("button"));
}

TEST_F(DialogTest, MayBeDestroyedByItsOwnAction) {
    dialog = std::make_unique<Dialog>(DialogWithIconPresenter{"Title", "Message", "sad_face", "Action"},
                                      animating, DialogActions{[this] { dialog.reset(); }, [] {}, [] {}});
    dialog->touchButton();
    animating->running[0].finish();
    EXPECT_EQ(dialog, nullptr);
}

TEST(ViewAnimatingWrapper, EndsWithExactlyOneAndOneCompletionThoughItIsGoneByThen) {
    std::vector<double> steps;
    int completions = 0;
    std::make_unique<ViewAnimatingWrapper>()->animate(
        std::chrono::milliseconds(30), [&](double progress) { steps.push_back(progress); },
        [&] { ++completions; });
    EXPECT_EQ(completions, 0);
    ASSERT_TRUE(turnUntil([&] { return completions > 0; }));
    EXPECT_EQ(steps.back(), 1.0);
    EXPECT_TRUE(std::ranges::is_sorted(steps));
    EXPECT_EQ(completions, 1);
}

} // namespace quillet::testing
