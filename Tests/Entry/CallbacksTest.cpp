#include "Support/ModuleOnStage.hpp"
#include "Support/Thorough.hpp"

#include <utility>

namespace quillet::testing {

namespace {

using ::testing::ElementsAre;

/// A host, and its analytics, that does something the first time that a line of this kind would be logged.
struct Reacting final : QuilletNavigationDelegate, kel::KelAnalyticsManagerType {
    void navigateToCart() override { react("navigateToCart"); }
    void navigateToHome() override { react("navigateToHome"); }
    void navigateToShareMagazine() override { react("navigateToShareMagazine"); }
    void trackScreen(const kel::KelAnalyticsScreenType& screen) override { react("screen " + screen.name()); }
    void trackEvent(const kel::KelAnalyticsEventType& event) override {
        react("event " + event.label().value_or(""));
    }

    void react(const std::string& line) {
        lines->push_back(line);
        if (line == trigger && reaction) {
            std::exchange(reaction, {})();
        }
    }

    Log lines;
    std::string trigger;
    std::function<void()> reaction;
};

/// Where the module calls the host, and the way there.
struct Place {
    const char* line;
    std::vector<QString> clicks;
    bool fails = false;
};

struct Callbacks : ModuleOnStage {
    std::vector<Place> places() {
        // Not from within the host's own call of present(), during which a StackView takes no other.
        return {{"event View Orders", {viewOrders}},
                {"event Send Orders to Cart - Click", {viewOrders, send}},
                {"screen Feedback de produtos", {viewOrders, send}},
                {"event Products Sent - Hide", {viewOrders, send, "Productos enviados"}},
                {"event Go to Cart", {viewOrders, send, goToCart}},
                {"navigateToCart", {viewOrders, send, goToCart}},
                {"screen Error", {viewOrders, send}, true},
                {"navigateToHome", {viewOrders, send, closeIcon}, true}};
    }

    /// Goes to the place with this reaction. The host that reacts is the only one.
    void goThrough(const Place& place, const std::function<void()>& reaction) {
        backend = ScriptedBackend::install();
        if (place.fails) {
            backend->script(Call::checkout, {Reply{.status = 500}});
        }
        hasReacted = false;
        reacting = std::make_shared<Reacting>();
        reacting->lines = log;
        reacting->trigger = place.line;
        reacting->reaction = [&] {
            hasReacted = true;
            reaction();
        };
        kel::KelAnalyticsManager::shared()->setSink(reacting);
        stage->window().resize(390, 1400);
        host = reacting;
        open();
        for (const QString& one : place.clicks) {
            ASSERT_TRUE(hasReacted || comesToShow(one)) << one.toStdString();
            if (!hasReacted) {
                stage->click(one);
                clicked = one;
            }
        }
        ASSERT_TRUE(turnUntil([&] { return hasReacted; }));
        animateFor(std::chrono::milliseconds(800));
        EXPECT_EQ(std::ranges::count(*log, place.line), 1);
        host.reset();
        reacting.reset();
        stage->popAll();
        log->clear();
    }

    void expectThatItOpensAnew() {
        backend = ScriptedBackend::install();
        open();
        clickThrough({viewOrders, send});
        ASSERT_TRUE(comesToShow(goToCart));
        stage->popAll();
        log->clear();
    }

    bool hasReacted = false;
    QString clicked;
    std::shared_ptr<Reacting> reacting;
};

} // namespace

TEST_F(Callbacks, MayDoWithTheModuleWhatTheyLike) {
    const std::pair<const char*, std::function<void()>> reactions[] = {
        {"removes the module and goes",
         [&] {
             stage->popAll();
             kel::KelAnalyticsManager::shared()->setSink(nullptr);
             host.reset();
             reacting.reset();
         }},
        {"leaves with an animation", [&] { stage->popSlowly(std::chrono::milliseconds(400)); }},
        {"opens another module", [&] { open(); }},
        {"taps again",
         [&] {
             if (stage->shows(clicked)) {
                 stage->click(clicked);
             }
         }},
        {"runs an event loop", [&] { animateFor(std::chrono::milliseconds(100)); }},
    };
    int cases = 0;
    std::size_t pair = 0;
    for (const auto& [name, reaction] : reactions) {
        for (const Place& place : places()) {
            // One of three in the quick form, at other places for each reaction.
            if (pair++ % thorough(3, 1) != 0) {
                continue;
            }
            SCOPED_TRACE(std::string(place.line) + ": " + name);
            ASSERT_NO_FATAL_FAILURE(goThrough(place, reaction));
            ++cases;
        }
        ASSERT_NO_FATAL_FAILURE(expectThatItOpensAnew());
    }
    RecordProperty("cases", cases);
}

TEST_F(Callbacks, OfTwoWindowsAreApart) {
    backend->script(Call::checkout, {Reply{.status = 500}, Reply::never()});
    std::unique_ptr<Stage> other = std::make_unique<Stage>();
    open();
    clickThrough({viewOrders, send});
    ASSERT_TRUE(comesToShow(closeIcon));
    std::swap(stage, other);
    open();
    clickThrough({viewOrders, send});
    log->clear();
    // Loading on the right keeps its own bar covered; the left one's dialog has its own answer.
    ASSERT_TRUE(turnUntil([&] { return backend->requests().size() == 6; }));
    stage->clickBar();
    EXPECT_EQ(stage->barClicks(), 0);
    EXPECT_FALSE(stage->shows(closeIcon));
    EXPECT_TRUE(other->shows(closeIcon));
    other->window().requestActivate();
    ASSERT_TRUE(turnUntil([&] { return other->window().isActive(); }));
    other->key(Qt::Key_Escape);
    EXPECT_TRUE(turnUntil([&] { return !other->shows(closeIcon); }));
    EXPECT_THAT(taken(log), ElementsAre("navigateToHome"));
    other->clickBar();
    EXPECT_EQ(other->barClicks(), 1);
    other.reset();
    backend->clock()->advance(std::chrono::seconds(60));
    ASSERT_TRUE(comesToShow(closeIcon));
    EXPECT_THAT(*log, ElementsAre("screen Error"));
    stage->window().requestActivate();
    ASSERT_TRUE(turnUntil([&] { return stage->window().isActive(); }));
    EXPECT_EQ(stage->focus()->property("text").toString(), retry);
}

} // namespace quillet::testing
