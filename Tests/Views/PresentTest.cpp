#include "Checkout/CheckoutFactory.hpp"
#include "KelCommon/KelAnalyticsManager.hpp"
#include "Platform/Screens/NavigationController.hpp"
#include "Quillet/Quillet.hpp"
#include "Quillet/Testing/RecordingHost.hpp"
#include "SaleSummary/Screen/SaleSummaryViewController.hpp"
#include "Support/FakeNetworkPath.hpp"
#include "Support/SilentPort.hpp"
#include "Support/Stage.hpp"
#include "Views/Dialogs/AlertDialog.hpp"
#include "Views/Screen/ViewController.hpp"
#include "Workers/CheckoutWorkerFactory.hpp"

#include <QQuickItem>

#include <gmock/gmock.h>

namespace quillet::testing {

namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct PresentTest : ::testing::Test {
    PresentTest() { kel::KelAnalyticsManager::shared()->setSink(std::make_shared<RecordingAnalytics>(log)); }
    ~PresentTest() override {
        kel::KelAnalyticsManager::shared()->setSink(nullptr);
        platform::URLSessionConfiguration::setDefaultConfiguration({});
        EXPECT_THAT(Stage::complaints(), IsEmpty());
    }

    /// Makes all sessions created from now on use this network path, which lives as long as their last call.
    std::weak_ptr<const platform::NetworkPathMonitoring>
    use(std::shared_ptr<const platform::NetworkPathMonitoring> network,
        std::vector<platform::HostMapping> mappings = {}) {
        if (mappings.empty()) {
            // Nobody listens there, so the monitor decides which error is reported.
            mappings = {{gateway(), "127.0.0.1", 1}, {"gateway.test", "127.0.0.1", 1}};
        }
        platform::URLSessionConfiguration::setDefaultConfiguration(
            {.hostMappings = std::move(mappings), .networkPath = network});
        return network;
    }

    [[nodiscard]] static std::string gateway() { return Starter::create("", "", {}, nullptr)->domainUrl(); }

    /// Opens the module; only the stack owns the screen afterwards.
    std::weak_ptr<platform::QuickViewController> open() {
        const auto starter = Starter::create("token", "idp", {"cart-1", 41051, "CL"}, host);
        const auto screen = starter->createRootViewController();
        EXPECT_TRUE(present(screen, stage->stack()));
        return screen;
    }

    std::weak_ptr<platform::QuickViewController> openCheckout() {
        const auto screen = CheckoutFactory(std::make_unique<CheckoutWorkerFactory>(
                                                "CL", 41051, Authorization{"jwt", "idp"}, "gateway.test"),
                                            std::make_unique<CheckoutConfigurator>(), host)
                                .create();
        EXPECT_TRUE(present(screen, stage->stack()));
        EXPECT_TRUE(turnUntil([&] { return stage->shows("Actualizar") && settled(); }));
        return screen;
    }

    [[nodiscard]] bool settled() const { return !stage->stack().property("busy").toBool(); }

    Log log = makeLog();
    std::shared_ptr<RecordingNavigation> host = std::make_shared<RecordingNavigation>(log);
    std::unique_ptr<Stage> stage = std::make_unique<Stage>();
};

} // namespace

TEST_F(PresentTest, CoversTheBarWhileItLoadsAndSaysThatThereIsNoConnection) {
    use(std::make_shared<FakeNetworkPath>(false));
    const auto screen = open();
    EXPECT_EQ(screen.lock()->title(), "Resumen de venta");
    EXPECT_THAT(taken(log), ElementsAre("screen Pedidos de mis clientes"));
    stage->clickBar();
    EXPECT_EQ(stage->barClicks(), 0);

    ASSERT_TRUE(turnUntil([&] {
        return stage->shows("Lo sentimos, tu dispositivo está sin conexión a internet") && settled();
    }));
    EXPECT_THAT(taken(log), ElementsAre("screen Error"));
    stage->clickBar();
    EXPECT_EQ(stage->barClicks(), 1);

    stage->click("Actualizar");
    EXPECT_FALSE(stage->shows("Actualizar"));
    ASSERT_TRUE(turnUntil([&] { return stage->shows("Actualizar"); }));
    EXPECT_THAT(*log, Contains("screen Error"));
}

TEST_F(PresentTest, ShowsItsTitleOnlyWhileItIsOnTopAndLoadsOnce) {
    use(std::make_shared<FakeNetworkPath>(false));
    const auto first = open();
    ASSERT_TRUE(turnUntil([&] { return stage->shows("Actualizar") && settled(); }));
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

TEST_F(PresentTest, FreesEverythingWhenTheHostTakesTheScreenAway) {
    const auto network = use(std::make_shared<FakeNetworkPath>(false));
    const auto screen = open();
    ASSERT_TRUE(turnUntil([&] { return stage->shows("Actualizar"); }));
    platform::URLSessionConfiguration::setDefaultConfiguration({});
    EXPECT_FALSE(network.expired());
    stage->popAll();
    EXPECT_TRUE(turnUntil([&] { return screen.expired() && network.expired(); }));
    EXPECT_EQ(stage->depth(), 1);
}

TEST_F(PresentTest, FreesEverythingWithTheHostsWindow) {
    const auto network = use(std::make_shared<FakeNetworkPath>(false));
    const auto screen = open();
    ASSERT_TRUE(turnUntil([&] { return stage->shows("Actualizar"); }));
    platform::URLSessionConfiguration::setDefaultConfiguration({});
    stage.reset();
    EXPECT_TRUE(turnUntil([&] { return screen.expired() && network.expired(); }));
}

TEST_F(PresentTest, DropsTheAnswerOfACallThatOutlivesItsScreen) {
    auto silence = std::make_unique<SilentPort>();
    const auto network =
        use(std::make_shared<FakeNetworkPath>(true), {{gateway(), "127.0.0.1", silence->port()}});
    const auto screen = open();
    platform::URLSessionConfiguration::setDefaultConfiguration({});
    log->clear();
    stage->popAll();
    ASSERT_TRUE(turnUntil([&] { return screen.expired(); }));
    EXPECT_FALSE(network.expired());
    // Closing the port resets its connections, which ends the call.
    silence.reset();
    EXPECT_TRUE(turnUntil([&] { return network.expired(); }));
    EXPECT_THAT(*log, IsEmpty());
}

// The test passes if the process ends cleanly while the call is still running.
TEST_F(PresentTest, LetsTheProcessEndInTheMiddleOfACall) {
    static const SilentPort silence;
    use(std::make_shared<FakeNetworkPath>(true), {{gateway(), "127.0.0.1", silence.port()}});
    const auto screen = open();
    stage.reset();
    EXPECT_TRUE(screen.expired());
}

TEST_F(PresentTest, AnswersEveryWayOfUsingADialogOnce) {
    use(std::make_shared<FakeNetworkPath>(false));
    const std::string retried = "screen Error";
    const std::string left = "navigateToHome";
    const struct {
        const char* way;
        std::function<void()> use;
        std::string outcome;
    } cases[] = {
        // The button acts on press, so sliding off it cancels nothing.
        {"button by mouse",
         [&] {
             stage->press("Actualizar"), stage->releaseAt({5, 5});
         },
         retried},
        {"button by touch", [&] { stage->touch("Actualizar"); }, retried},
        {"button by key", [&] { stage->key(Qt::Key_Return), stage->repeatKey(Qt::Key_Return); }, retried},
        {"button by space", [&] { stage->key(Qt::Key_Space), stage->repeatKey(Qt::Key_Space); }, retried},
        {"button by screen reader", [&] { stage->pressByScreenReader("Actualizar"); }, retried},
        // The background also covers the bar.
        {"background by mouse",
         [&] {
             stage->clickAt({5, 5});
         },
         left},
        {"background by touch",
         [&] {
             stage->touchAt({5, 5});
         },
         left},
        {"close icon by mouse", [&] { stage->click("dialogCloseIcon"); }, left},
        {"close icon by touch", [&] { stage->touch("dialogCloseIcon"); }, left},
        {"close icon by key", [&] { stage->key(Qt::Key_Tab), stage->key(Qt::Key_Return); }, left},
        {"close icon by escape", [&] { stage->key(Qt::Key_Escape); }, left},
        {"close icon by screen reader", [&] { stage->pressByScreenReader("Cerrar"); }, left},
    };
    for (const auto& [way, use, outcome] : cases) {
        SCOPED_TRACE(way);
        const auto screen = openCheckout();
        EXPECT_EQ(screen.lock()->title(), "Envío al carrito");
        EXPECT_THAT(taken(log), ElementsAre("screen Error"));
        use();
        ASSERT_TRUE(turnUntil([&] { return !log->empty() && settled(); }));
        EXPECT_THAT(taken(log), ElementsAre(outcome));
        EXPECT_EQ(stage->barClicks(), 0);
        stage->popAll();
    }
}

TEST_F(PresentTest, BringsADialogInFromWhereTheOneBeforeHasFadedTo) {
    use(std::make_shared<FakeNetworkPath>(false));
    const auto screen = std::dynamic_pointer_cast<SaleSummaryViewController>(open().lock());
    ASSERT_TRUE(turnUntil([&] { return stage->shows("Actualizar") && settled(); }));
    const auto opacity = [&] { return stage->item("dialogBackground")->opacity(); };
    screen->showDialog(DialogPresenter{"first", {}, "yes"}, {});
    ASSERT_TRUE(turnUntil([&] { return opacity() == 1; }));
    stage->click("dialogCloseIcon");
    ASSERT_TRUE(turnUntil([&] { return opacity() < 0.8; }));
    const double faded = opacity();
    screen->showDialog(DialogPresenter{"second", {}, "no"}, {});
    EXPECT_NEAR(opacity(), faded, 0.15);
    EXPECT_EQ(stage->focus()->property("text").toString(), "no");
    EXPECT_TRUE(turnUntil([&] { return opacity() == 1; }));
}

TEST_F(PresentTest, RetriesByMouseTouchAndKey) {
    use(std::make_shared<FakeNetworkPath>(false));
    const std::function<void()> ways[] = {
        [&] { stage->click("Actualizar"); }, [&] { stage->touch("Actualizar"); },
        [&] { stage->item("Actualizar")->forceActiveFocus(Qt::TabFocusReason), stage->key(Qt::Key_Return); }};
    for (const auto& way : ways) {
        const auto screen = open();
        ASSERT_TRUE(turnUntil([&] { return stage->shows("Actualizar") && settled(); }));
        log->clear();
        way();
        ASSERT_TRUE(turnUntil([&] { return !log->empty(); }));
        // Both calls were repeated, and the open orders once more after the association, so a second outcome
        // may follow.
        EXPECT_THAT(taken(log), Each("screen Error"));
        stage->popAll();
    }
}

TEST_F(PresentTest, KeepsTheKeysInTheDialogAndGivesThemBack) {
    use(std::make_shared<FakeNetworkPath>(false));
    const auto screen = open();
    ASSERT_TRUE(turnUntil([&] { return stage->shows("Actualizar") && settled(); }));
    QQuickItem* behind = stage->item("Actualizar");
    behind->forceActiveFocus(Qt::TabFocusReason);
    log->clear();
    AlertDialog().show("Title", "Body", ViewControllerWrapper(screen), true);
    ASSERT_TRUE(stage->shows("Title") && stage->shows("Body"));
    // While one finger rests on the card, neither a second finger nor a screen reader reaches the page below.
    stage->touchWhileResting(stage->middle("Title"), stage->middle("Actualizar"));
    stage->pressByScreenReader("Actualizar");
    EXPECT_THAT(*log, IsEmpty());
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Down}) {
        stage->key(key);
        EXPECT_EQ(stage->focus()->objectName(), "dialogCloseIcon");
    }
    stage->key(Qt::Key_Escape);
    EXPECT_TRUE(turnUntil([&] { return !stage->shows("Title"); }));
    EXPECT_TRUE(turnUntil([&] { return stage->focus() == behind; }));
    EXPECT_THAT(*log, IsEmpty());

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
    use(std::make_shared<FakeNetworkPath>(false));
    const auto shownBefore = open().lock();
    stage->popAll();
    EXPECT_FALSE(present(shownBefore, stage->stack()));
    EXPECT_EQ(stage->depth(), 1);
    EXPECT_EQ(Stage::complaints().size(), 2);
    stage.reset();
    stage = std::make_unique<Stage>();
}

} // namespace quillet::testing
