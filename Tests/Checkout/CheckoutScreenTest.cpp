#include "Checkout/CheckoutFactory.hpp"
#include "KelCommon/KelAnalyticsManager.hpp"
#include "Platform/Screens/NavigationController.hpp"
#include "Quillet/Testing/RecordingHost.hpp"
#include "Support/FakeWorkerCollaborators.hpp"
#include "Support/Stage.hpp"
#include "Views/QuilletViews.hpp"
#include "Workers/CheckoutWorker.hpp"

#include <QPointer>

#include <gmock/gmock.h>

namespace quillet::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Makes real workers with the test's service and main queue.
class WorkerFactory final : public CheckoutWorkerCreating {
public:
    WorkerFactory(std::shared_ptr<Conversation<CheckoutResult>> talk,
                  std::shared_ptr<platform::MainQueue> queue,
                  std::vector<std::weak_ptr<CheckoutWorker>>& made)
        : talk_(std::move(talk)), queue_(std::move(queue)), made_(made) {}
    [[nodiscard]] std::shared_ptr<CheckoutWorker> create() const override {
        auto worker = std::make_shared<CheckoutWorker>(std::make_unique<FakeCheckoutService>(talk_),
                                                       std::make_unique<DrainedQueue>(queue_));
        made_.push_back(worker);
        return worker;
    }

private:
    std::shared_ptr<Conversation<CheckoutResult>> talk_;
    std::shared_ptr<platform::MainQueue> queue_;
    std::vector<std::weak_ptr<CheckoutWorker>>& made_;
};

/// A host that runs an action of the test at each screen view.
class ActingAnalytics final : public kel::KelAnalyticsManagerType {
public:
    explicit ActingAnalytics(std::function<void()> act) : act_(std::move(act)) {}
    void trackScreen(const kel::KelAnalyticsScreenType&) override { act_(); }
    void trackEvent(const kel::KelAnalyticsEventType&) override {}

private:
    std::function<void()> act_;
};

struct CheckoutScreen : ::testing::Test {
    CheckoutScreen() {
        kel::KelAnalyticsManager::shared()->setSink(std::make_shared<RecordingAnalytics>(log));
        useQuilletViews(*qmlEngine(&stage.stack()));
    }
    ~CheckoutScreen() override {
        kel::KelAnalyticsManager::shared()->setSink(nullptr);
        EXPECT_THAT(stage.complaints(), IsEmpty());
    }

    std::weak_ptr<platform::QuickViewController> open() {
        const auto screen = CheckoutFactory(std::make_unique<WorkerFactory>(talk, queue, workers),
                                            std::make_unique<CheckoutConfigurator>(), host)
                                .create();
        EXPECT_TRUE(platform::NavigationController::of(stage.stack()).push(screen));
        return screen;
    }

    /// Answers the call with that index.
    void answer(CheckoutResult result, std::size_t call = 0) {
        std::exchange(talk->pending.at(call), nullptr)(std::move(result));
        queue->drain();
    }

    static CheckoutResult success() {
        CheckoutResponse response;
        response.message = CheckoutResponseMessage::cartSubmittedSuccess;
        return {.checkoutResponse = response, .error = {}, .httpStatusCode = 200};
    }
    static CheckoutResult failure() {
        return {.checkoutResponse = {}, .error = HttpStatusCodeError{500}, .httpStatusCode = 500};
    }

    [[nodiscard]] bool settled() const { return !stage.stack().property("busy").toBool(); }

    Log log = makeLog();
    std::shared_ptr<RecordingNavigation> host = std::make_shared<RecordingNavigation>(log);
    std::shared_ptr<platform::MainQueue> queue = std::make_shared<platform::MainQueue>();
    std::shared_ptr<Conversation<CheckoutResult>> talk = std::make_shared<Conversation<CheckoutResult>>();
    std::vector<std::weak_ptr<CheckoutWorker>> workers;
    Stage stage;
};

} // namespace

TEST_F(CheckoutScreen, TakesEverythingAlongWhenItIsClosedBeforeTheAnswer) {
    const auto screen = open();
    ASSERT_EQ(talk->pending.size(), 1u);
    EXPECT_FALSE(workers[0].expired());
    stage.popAll();
    ASSERT_TRUE(turnUntil([&] { return screen.expired(); }));
    EXPECT_TRUE(workers[0].expired());
    // The service held the other end.
    EXPECT_EQ(talk.use_count(), 1);
    answer(failure());
    EXPECT_EQ(stage.depth(), 1);
    EXPECT_THAT(*log, IsEmpty());
}

TEST_F(CheckoutScreen, HearsNoAnswerOnceTheHostHasTakenItOff) {
    const std::function<void()> ways[] = {
        [&] { stage.pop(); },
        [&] { stage.popAll(); },
        // It lies below another screen.
        [&] { open(), stage.popAll(); },
    };
    for (const auto& takeOff : ways) {
        for (const CheckoutResult& result : {success(), failure()}) {
            talk->pending.clear();
            const auto screen = open();
            ASSERT_TRUE(turnUntil([&] { return settled(); }));
            takeOff();
            // The page is still there.
            ASSERT_FALSE(screen.expired());
            answer(result);
            EXPECT_EQ(stage.depth(), 1);
            ASSERT_TRUE(turnUntil([&] { return settled() && screen.expired(); }));
            EXPECT_EQ(stage.depth(), 1);
            EXPECT_THAT(taken(log), IsEmpty());
        }
    }
}

TEST_F(CheckoutScreen, LivesToTheEndOfAnAnswerInWhoseMiddleTheHostTakesItOff) {
    const auto screen = open();
    const QPointer<QQuickItem> page = stage.stack().property("currentItem").value<QQuickItem*>();
    bool lives = false;
    kel::KelAnalyticsManager::shared()->setSink(std::make_shared<ActingAnalytics>([&] {
        stage.popAll();
        EXPECT_TRUE(turnUntil([&] { return !page; }));
        lives = !screen.expired();
    }));
    answer(failure());
    EXPECT_TRUE(lives);
    EXPECT_TRUE(screen.expired());
}

TEST_F(CheckoutScreen, GoesOnUnderAPageThatCoversIt) {
    open();
    open();
    ASSERT_TRUE(turnUntil([&] { return settled(); }));
    answer(failure());
    EXPECT_THAT(taken(log), ElementsAre("screen Error"));
    EXPECT_FALSE(stage.shows("Actualizar"));
    stage.pop();
    ASSERT_TRUE(turnUntil([&] { return settled(); }));
    stage.click("Actualizar");
    EXPECT_TRUE(turnUntil([&] { return talk->pending.size() == 3; }));
    // The window is destroyed while its overlay still has the keyboard focus to give back.
}

TEST_F(CheckoutScreen, SetsItsTitleOnEachAppearanceAndChecksOutOnce) {
    const auto screen = open();
    EXPECT_EQ(screen.lock()->title(), "Envío al carrito");
    EXPECT_TRUE(screen.lock()->hidesBackButton());
    answer(success());
    ASSERT_TRUE(turnUntil([&] { return stage.depth() == 3 && settled(); }));
    const auto* result = stage.stack().property("currentItem").value<QQuickItem*>();
    const auto* shown = result->property("viewController").value<QObject*>();
    EXPECT_EQ(shown->property("title").toString(), "Comentarios sobre los envíos");
    EXPECT_TRUE(shown->property("hidesBackButton").toBool());
    screen.lock()->setTitle({});
    stage.pop();
    ASSERT_TRUE(turnUntil([&] { return stage.depth() == 2 && settled(); }));
    EXPECT_EQ(screen.lock()->title(), "Envío al carrito");
    EXPECT_EQ(talk->log.size(), 1u);
    EXPECT_THAT(taken(log), ElementsAre("screen Feedback de produtos"));
}

} // namespace quillet::testing
