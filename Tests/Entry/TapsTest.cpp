#include "Support/Thorough.hpp"
#include "Targets.hpp"

#include <numeric>
#include <ranges>

namespace quillet::testing {

namespace {

using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

/// Taps that follow each other; of those in a group no time passes between them.
using Rhythm = std::vector<int>;
const Rhythm rhythms[] = {{2, 1}, {1}, {2}, {3}, {1, 1}};

struct Taps : AtTargets {
    /// After each group a dialog's other ways out are tapped as well.
    void tap(const Target& target, const Rhythm& rhythm, bool byFinger) {
        const QPointF point = place(target.tapped);
        for (const int taps : rhythm) {
            stage->tapRepeatedly(point, taps, byFinger);
            for (const QString& other : {viewOrders, retry, closeIcon, background}) {
                if (stage->shows(closeIcon) && stage->shows(other)) {
                    stage->tapRepeatedly(place(other), 1, byFinger);
                }
            }
            animateFor(std::chrono::milliseconds(150));
        }
        animateFor(std::chrono::milliseconds(800));
    }

    /// The texts that can be seen and are no button's.
    void collectTexts(const QQuickItem& item, std::vector<QPointF>& found) const {
        if (!item.isVisible() || item.property("actsOnPress").isValid()) {
            return;
        }
        if (!item.property("text").toString().isEmpty() && !Cover::isOver(item)) {
            found.push_back(item.mapToScene(item.boundingRect().center()));
        }
        for (const QQuickItem* child : item.childItems()) {
            collectTexts(*child, found);
        }
    }
};

struct TapsBy : Taps, ::testing::WithParamInterface<bool> {};

} // namespace

TEST_P(TapsBy, HaveOneEffectHoweverFastTheyFollow) {
    int cases = 0;
    for (const Target& target : targets()) {
        for (const Rhythm& rhythm : rhythms | std::views::take(thorough(2, 5))) {
            SCOPED_TRACE(target.name + ::testing::PrintToString(rhythm));
            ASSERT_NO_FATAL_FAILURE(reach(target));
            tap(target, rhythm, GetParam());
            auto lines = target.lines;
            if (target.isSwitch) {
                lines.resize(std::accumulate(rhythm.begin(), rhythm.end(), 0u));
            }
            EXPECT_THAT(*log, ElementsAreArray(lines));
            EXPECT_EQ(backend->requests().size(), target.requests);
            ++cases;
        }
    }
    RecordProperty("cases", cases);
}

TEST_P(TapsBy, DoNothingOnCardsOnTextsAndBelowADialog) {
    int cases = 0;
    for (const Target& target : targets()) {
        SCOPED_TRACE(target.name);
        ASSERT_NO_FATAL_FAILURE(reach(target));
        const std::size_t requests = backend->requests().size();
        std::vector<QPointF> texts;
        collectTexts(*stage->window().contentItem(), texts);
        EXPECT_GE(texts.size(), 1u);
        for (const QPointF point : texts) {
            stage->tapRepeatedly(point, 2, GetParam());
            ++cases;
        }
        // A screen reader may still have the button that a dialog has come to lie over.
        if (stage->shows(send) && target.tapped != send) {
            stage->pressByScreenReader(send);
        }
        animateFor(std::chrono::milliseconds(800));
        EXPECT_THAT(*log, IsEmpty());
        EXPECT_EQ(backend->requests().size(), requests);
        EXPECT_TRUE(stage->shows(target.tapped));
    }
    RecordProperty("cases", cases);
}

INSTANTIATE_TEST_SUITE_P(, TapsBy, ::testing::Bool(),
                         [](const auto& parameter) { return parameter.param ? "Finger" : "Mouse"; });

TEST_F(Taps, HaveOneEffectByKeyByScreenReaderAndByAPressThatSlidesOff) {
    const auto use = [&](const std::string& name, const std::function<void()>& way) {
        SCOPED_TRACE(name);
        const Target goal = target(name);
        ASSERT_NO_FATAL_FAILURE(reach(goal));
        const int barClicks = stage->barClicks();
        way();
        animateFor(std::chrono::milliseconds(800));
        EXPECT_EQ(stage->barClicks(), barClicks);
        EXPECT_THAT(*log, ElementsAreArray(goal.lines));
        EXPECT_EQ(backend->requests().size(), goal.requests);
    };
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
        use("failure", [&] { stage->key(key), stage->repeatKey(key); });
    }
    use("failure", [&] { stage->press(retry), stage->releaseAt({5, 5}); });
    use("failure", [&] { stage->pressByScreenReader(retry); });
    use("failure, closed", [&] { stage->key(Qt::Key_Tab), stage->key(Qt::Key_Return); });
    use("failure, closed", [&] { stage->key(Qt::Key_Escape), stage->repeatKey(Qt::Key_Escape); });
    use("failure, closed", [&] { stage->pressByScreenReader("Cerrar"); });
    use("time-out", [&] {
        stage->item(retry)->forceActiveFocus(Qt::TabFocusReason);
        stage->key(Qt::Key_Return);
    });
}

} // namespace quillet::testing
