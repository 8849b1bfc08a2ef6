#include "Checkout/CheckoutFactory.hpp"
#include "Checkout/Screen/CheckoutViewModel.hpp"
#include "Support/ModuleTest.hpp"
#include "Workers/CheckoutWorkerFactory.hpp"

#include <QCoreApplication>
#include <QPointer>

namespace quillet::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Lines = std::vector<std::string>;

/// A host that runs an action of the test at each screen view.
class ActingAnalytics final : public kel::KelAnalyticsManagerType {
public:
    explicit ActingAnalytics(std::function<void()> act) : act_(std::move(act)) {}
    void trackScreen(const kel::KelAnalyticsScreenType&) override { act_(); }
    void trackEvent(const kel::KelAnalyticsEventType&) override {}

private:
    std::function<void()> act_;
};

Reply verdict(const QString& message, std::int64_t status = 200) {
    return {.status = status,
            .body = QString::fromStdString(sampleBody(Call::checkout))
                        .replace("CART_SUBMITTED_PARTIAL_SUCCESS", message)
                        .toStdString()};
}

struct CheckoutScreen : ModuleTest {
    /// Opens a checkout whose call is answered by `answer()`.
    std::weak_ptr<platform::QuickViewController> open(Reply reply) {
        reply.after = std::chrono::seconds(5);
        backend->script(Call::checkout, {reply});
        const auto screen = CheckoutFactory(std::make_unique<CheckoutWorkerFactory>(
                                                "CL", 41052, Authorization{"jwt", "idp"}, "gateway.test"),
                                            std::make_unique<CheckoutConfigurator>(), host)
                                .create();
        EXPECT_TRUE(present(screen, stage.stack()));
        return screen;
    }
    void answer() const {
        backend->clock()->advance(std::chrono::seconds(5));
        QCoreApplication::processEvents();
    }
    [[nodiscard]] bool settles(int depth) const {
        return turnUntil([&] { return stage.depth() == depth && settled(stage.stack()); });
    }

    const Reply failure{.status = 500};
    Stage stage;
};

} // namespace

TEST_F(CheckoutScreen, ShowsTheVerdictsResultAndLooksAtTheStatusForErrorsOnly) {
    const QString all = "Vea los productos que fueron enviados al carrito.";
    const QString none = "Infelizmente niguno de los productos fue enviado al carrito.";
    const QString generic = "¡Ups, tuvimos un problema!";
    const platform::URLError offline{platform::URLError::Code::notConnectedToInternet, ""};
    const struct {
        Reply reply;
        QString shown;
    } cases[] = {
        {verdict("CART_SUBMITTED_SUCCESS"), all},
        {verdict("CART_SUBMITTED_SUCCESS", 422), all},
        {verdict("CART_SUBMITTED_PARTIAL_SUCCESS"), someSent},
        {verdict("CART_SUBMITTED_PARTIAL_SUCCESS", 500), someSent},
        {verdict("CART_SUBMITTED_ERROR", 422), none},
        {verdict("CART_SUBMITTED_ERROR", 200), generic},
        {verdict("CART_SUBMITTED_ERROR", 400), generic},
        {failure, generic},
        {{.error = offline}, generic},
    };
    for (const auto& transition : {"pushEnter", "pushExit"}) {
        stage.stack().setProperty(transition, QVariant::fromValue<QObject*>(nullptr));
    }
    for (const auto& [reply, shown] : cases) {
        open(reply);
        answer();
        EXPECT_TRUE(stage.shows(shown)) << shown.toStdString() << " after " << reply.status;
        EXPECT_THAT(taken(log),
                    ElementsAre(shown == generic ? "screen Error" : "screen Feedback de produtos"));
        stage.popAll();
    }
    EXPECT_EQ(backend->requests().size(), std::size(cases));
}

TEST_F(CheckoutScreen, TracksAnErrorThatNoScreenShows) {
    CheckoutViewModel(nullptr, std::make_shared<RecordingAnalytics>(log))
        .didCheckout(
            std::make_shared<const CheckoutResult>(CheckoutResult{{}, HttpStatusCodeError{500}, 500}));
    EXPECT_THAT(taken(log), ElementsAre("screen Error"));
}

TEST_F(CheckoutScreen, HearsNoAnswerOnceTheHostHasTakenItOff) {
    const std::function<void()> ways[] = {
        [&] { stage.pop(); },
        [&] { stage.popAll(); },
        // It lies below another screen.
        [&] { open(failure), stage.popAll(); },
    };
    for (const auto& takeOff : ways) {
        for (const Reply& reply : {verdict("CART_SUBMITTED_SUCCESS"), failure}) {
            const auto screen = open(reply);
            ASSERT_TRUE(settles(2));
            takeOff();
            // The page is still there.
            ASSERT_FALSE(screen.expired());
            answer();
            EXPECT_EQ(stage.depth(), 1);
            ASSERT_TRUE(turnUntil([&] { return screen.expired(); }));
            ASSERT_TRUE(settles(1));
            EXPECT_THAT(taken(log), IsEmpty());
        }
    }
}

TEST_F(CheckoutScreen, LivesToTheEndOfAnAnswerInWhoseMiddleTheHostTakesItOff) {
    const auto screen = open(failure);
    const QPointer<QQuickItem> page = stage.stack().property("currentItem").value<QQuickItem*>();
    bool lives = false;
    kel::KelAnalyticsManager::shared()->setSink(std::make_shared<ActingAnalytics>([&] {
        stage.popAll();
        EXPECT_TRUE(turnUntil([&] { return !page; }));
        lives = !screen.expired();
    }));
    answer();
    EXPECT_TRUE(lives);
    EXPECT_TRUE(screen.expired());
}

TEST_F(CheckoutScreen, GoesOnUnderAPageThatCoversItAndDoesNothingWithoutAHost) {
    open(failure);
    open(failure);
    ASSERT_TRUE(settles(3));
    answer();
    EXPECT_THAT(taken(log), ElementsAre("screen Error", "screen Error"));
    stage.pop();
    ASSERT_TRUE(settles(2));
    host.reset();
    stage.key(Qt::Key_Escape);
    ASSERT_TRUE(turnUntil([&] { return !stage.shows("Actualizar"); }));
    EXPECT_THAT(taken(log), IsEmpty());
}

TEST_F(CheckoutScreen, SetsItsTitleOnEachAppearanceAndChecksOutOnce) {
    const auto screen = open(verdict("CART_SUBMITTED_SUCCESS"));
    answer();
    ASSERT_TRUE(settles(3));
    screen.lock()->setTitle({});
    stage.pop();
    ASSERT_TRUE(settles(2));
    EXPECT_EQ(screen.lock()->title(), "Envío al carrito");
    EXPECT_EQ(backend->requests().size(), 1u);
}

} // namespace quillet::testing
