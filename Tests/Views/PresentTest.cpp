#include "Platform/Screens/NavigationController.hpp"
#include "SaleSummary/Screen/SaleSummaryViewController.hpp"
#include "Support/ModuleTest.hpp"
#include "Views/Dialogs/AlertDialog.hpp"
#include "Views/Screen/ViewController.hpp"

namespace quillet::testing {

namespace {

/// The first screen offers another try.
struct PresentTest : ModuleTest {
    PresentTest() { backend->script(Call::associate, {Reply{.status = 504}}); }
};

} // namespace

TEST_F(PresentTest, ShowsItsTitleOnlyWhileItIsOnTopAndLoadsOnce) {
    const auto first = open();
    ASSERT_TRUE(comesToShow(retry));
    log->clear();
    const auto second = open();
    EXPECT_EQ(first.lock()->title(), "");
    EXPECT_EQ(second.lock()->title(), "Resumen de venta");
    EXPECT_FALSE(second.lock()->hidesBackButton());
    ASSERT_TRUE(turnUntil([&] { return settled(); }));
    stage->pop();
    ASSERT_TRUE(turnUntil([&] { return stage->depth() == 2 && settled() && second.expired(); }));
    EXPECT_EQ(first.lock()->title(), "Resumen de venta");
    EXPECT_EQ(std::ranges::count(*log, "screen Pedidos de mis clientes"), 1);
}

TEST_F(PresentTest, BringsADialogInFromWhereTheOneBeforeHasFadedTo) {
    const auto screen = std::dynamic_pointer_cast<SaleSummaryViewController>(open().lock());
    ASSERT_TRUE(comesToShow(retry));
    const auto opacity = [&] { return stage->item("dialogBackground")->opacity(); };
    screen->showDialog(DialogPresenter{"first", {}, "yes"}, {});
    ASSERT_TRUE(turnUntil([&] { return opacity() == 1; }));
    stage->click(closeIcon);
    ASSERT_TRUE(turnUntil([&] { return opacity() < 0.8; }));
    const double faded = opacity();
    screen->showDialog(DialogPresenter{"second", {}, "no"}, {});
    EXPECT_NEAR(opacity(), faded, 0.15);
    EXPECT_EQ(stage->focus()->property("text").toString(), "no");
    EXPECT_TRUE(turnUntil([&] { return opacity() == 1; }));
}

TEST_F(PresentTest, KeepsTheKeysInTheDialogAndGivesThemBack) {
    const auto screen = open();
    ASSERT_TRUE(comesToShow(retry));
    QQuickItem* behind = stage->item(retry);
    behind->forceActiveFocus(Qt::TabFocusReason);
    log->clear();
    AlertDialog().show("Title", "Body", ViewControllerWrapper(screen), true);
    ASSERT_TRUE(stage->shows("Title") && stage->shows("Body"));
    // While one finger rests on the card, neither a second finger nor a screen reader reaches the page below.
    stage->touchWhileResting(stage->middle("Title"), stage->middle(retry));
    stage->pressByScreenReader(retry);
    EXPECT_THAT(*log, ::testing::IsEmpty());
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Down}) {
        stage->key(key);
        EXPECT_EQ(stage->focus()->objectName(), closeIcon);
    }
    stage->key(Qt::Key_Escape);
    EXPECT_TRUE(turnUntil([&] { return !stage->shows("Title"); }));
    EXPECT_TRUE(turnUntil([&] { return stage->focus() == behind; }));
    EXPECT_THAT(*log, ::testing::IsEmpty());

    stage->popAll();
    ASSERT_TRUE(turnUntil([&] { return screen.expired(); }));
    AlertDialog().show("Title", "Body", ViewControllerWrapper(screen), false);
    EXPECT_FALSE(stage->shows("Title"));
}

TEST_F(PresentTest, ReportsAScreenThatItCannotShow) {
    class Blank final : public platform::QuickViewController {
    public:
        [[nodiscard]] QUrl viewUrl() const override { return QUrl("qrc:/no/such/file.qml"); }
    };
    EXPECT_FALSE(present(std::make_shared<Blank>(), stage->stack()));
    const auto shownBefore = open().lock();
    stage->popAll();
    EXPECT_FALSE(present(shownBefore, stage->stack()));
    EXPECT_EQ(stage->depth(), 1);
    EXPECT_EQ(Stage::complaints().size(), 2);
    stage.reset();
    stage = std::make_shared<Stage>();
}

} // namespace quillet::testing
