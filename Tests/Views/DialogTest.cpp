#include "Views/Dialogs/Dialog.hpp"
#include "Quillet/Testing/RecordingHost.hpp"
#include "Support/HandDrivenAnimating.hpp"

#include <gmock/gmock.h>

namespace quillet::testing {

TEST(Dialog, FadesFirstAndThenRunsTheActionOfEachTouch) {
    const auto log = makeLog();
    const auto animating = std::make_shared<HandDrivenAnimating>();
    std::unique_ptr<Dialog> dialog;
    const auto action = [&](const std::string& name) {
        return [&, name] { log->push_back(name + (dialog && dialog->isOnScreen() ? " too early" : "")); };
    };
    dialog = std::make_unique<Dialog>(DialogPresenter{"Title", "Message", "Action"}, animating,
                                      DialogActions{action("button"), action("background"), {}});
    dialog->touchBackground();
    EXPECT_EQ(animating->running[0].duration, std::chrono::milliseconds(700));
    EXPECT_EQ(dialog->alpha(), 1);
    animating->running[0].step(0.5);
    EXPECT_DOUBLE_EQ(dialog->alpha(), 0.5);
    // The fade of a second touch begins there, and neither makes the dialog brighter again.
    dialog->touchButton();
    animating->running[1].step(0.1);
    animating->running[0].step(0.6);
    animating->running[1].step(0.2);
    EXPECT_DOUBLE_EQ(dialog->alpha(), 0.4);
    EXPECT_THAT(*log, ::testing::IsEmpty());
    animating->running[0].finish();
    EXPECT_FALSE(dialog->isOnScreen());
    // The other action runs though the dialog is gone by then.
    dialog.reset();
    animating->running[1].finish();
    EXPECT_THAT(*log, ::testing::ElementsAre("background", "button"));
}

} // namespace quillet::testing
