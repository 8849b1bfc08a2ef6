#include "SaleSummary/ViewModel/SaleSummaryViewModel.hpp"
#include "Support/ModuleTest.hpp"

#include <QCoreApplication>

namespace quillet::testing {

namespace {

using std::chrono::seconds;

const auto openOrdersFail = Reply{.status = 500, .after = seconds(2)};

/// A worker that answers nothing.
struct FakeWorker final : Executable {
    explicit FakeWorker(bool hasSucceeded) : succeeded(hasSucceeded) {}
    [[nodiscard]] bool isFinishedSuccessfully() const override { return succeeded; }
    void execute() override { ++runs; }

    bool succeeded;
    int runs = 0;
};

struct SaleSummaryCalls : ModuleTest {
    /// The calls so far, and "..." while the module waits.
    [[nodiscard]] std::string calls() const {
        std::string methods;
        for (const auto& request : backend->requests()) {
            methods += request.httpMethod.value_or("GET") + ' ';
        }
        const auto* page = stage.stack().property("currentItem").value<QQuickItem*>();
        return methods +
               (page->property("isCovered").toBool() && !stage.shows("dialogCloseIcon") ? "..." : "");
    }
    /// Lets time pass on the back end's clock, until which these calls have been made.
    void expectAfter(seconds time, const std::string& expected) const {
        backend->clock()->advance(time);
        QCoreApplication::processEvents();
        static_cast<void>(turnUntilFor(seconds(5), [&] { return calls() == expected; }));
        EXPECT_EQ(calls(), expected);
    }
    /// Fails both calls, and tries again.
    void tryAgain() {
        ASSERT_TRUE(open(stage.stack()));
        expectAfter(seconds(5), "PATCH GET ...");
        expectAfter(seconds(5), "PATCH GET ");
        taken(log);
        stage.click("Actualizar");
        EXPECT_FALSE(stage.shows("Actualizar"));
    }

    Stage stage;
};

} // namespace

TEST_F(SaleSummaryCalls, LeadNowhereWithoutAHost) {
    backend->script(Call::associate, {Reply{.status = 500}});
    ASSERT_TRUE(open(stage.stack()) && turnUntil([&] { return stage.shows("Volver"); }));
    taken(log);
    host.reset();
    stage.click("Volver");
    EXPECT_THAT(taken(log), ::testing::IsEmpty());
}

TEST_F(SaleSummaryCalls, RepeatEachForItself) {
    for (const bool succeeded : {false, true}) {
        const auto association = std::make_shared<FakeWorker>(succeeded);
        const auto openOrders = std::make_shared<FakeWorker>(!succeeded);
        SaleSummaryViewModel(nullptr, association, openOrders, nullptr).tryAgainDoRequests();
        EXPECT_EQ(association->runs, succeeded ? 0 : 1);
        EXPECT_EQ(openOrders->runs, succeeded ? 1 : 0);
    }
}

TEST_F(SaleSummaryCalls, ShowEachJoinWhereTheAssociationIsTheFirstToAnswerAgain) {
    backend->script(Call::associate, {Reply{.status = 504, .after = seconds(5)},
                                      Reply{.body = sampleBody(Call::associate), .after = seconds(1)}});
    backend->script(Call::getOpenOrders, {openOrdersFail});
    tryAgain();
    EXPECT_EQ(calls(), "PATCH GET PATCH GET ...");
    expectAfter(seconds(1), "PATCH GET PATCH GET GET ...");
    for (int join = 0; join < 2; ++join) {
        expectAfter(seconds(1), "PATCH GET PATCH GET GET ");
        EXPECT_THAT(taken(log), ::testing::ElementsAre(event("Register Order", "Deep Linking")));
    }
}

TEST_F(SaleSummaryCalls, WaitForTheAssociationWhereTheOpenOrdersAreTheFirstToAnswerAgain) {
    backend->script(Call::associate, {Reply{.status = 504, .after = seconds(5)}});
    backend->script(Call::getOpenOrders, {openOrdersFail});
    tryAgain();
    expectAfter(seconds(2), "PATCH GET PATCH GET ...");
    expectAfter(seconds(3), "PATCH GET PATCH GET GET ...");
    expectAfter(seconds(2), "PATCH GET PATCH GET GET ");
    EXPECT_THAT(taken(log), ::testing::ElementsAre("screen Error"));
}

} // namespace quillet::testing
