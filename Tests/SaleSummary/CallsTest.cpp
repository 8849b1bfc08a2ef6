#include "SaleSummary/ViewModel/SaleSummaryViewModel.hpp"
#include "Support/ModuleTest.hpp"

#include <QCoreApplication>

namespace quillet::testing {

namespace {

using std::chrono::seconds;
using ::testing::Return;
using ::testing::StrictMock;

const auto openOrdersFail = Reply{.status = 500, .after = seconds(2)};

struct MockWorker : Executable {
    MOCK_METHOD(bool, isFinishedSuccessfully, (), (const, override));
    MOCK_METHOD(void, execute, (), (override));
};

struct SaleSummaryCalls : ModuleTest {
    /// The calls so far, and "..." while the module waits.
    [[nodiscard]] std::string calls() const {
        std::string methods;
        for (const auto& request : backend->requests()) {
            methods += request.httpMethod.value_or("GET") + ' ';
        }
        const auto* page = stage->stack().property("currentItem").value<QQuickItem*>();
        return methods +
               (page->property("isCovered").toBool() && !stage->shows("dialogCloseIcon") ? "..." : "");
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
        open();
        ASSERT_TRUE(turnUntil([&] { return settled(); }));
        expectAfter(seconds(5), "PATCH GET ...");
        expectAfter(seconds(5), "PATCH GET ");
        taken(log);
        stage->click("Actualizar");
        EXPECT_FALSE(stage->shows("Actualizar"));
    }
};

} // namespace

TEST_F(SaleSummaryCalls, RepeatEachForItself) {
    for (const bool succeeded : {false, true}) {
        const auto association = std::make_shared<StrictMock<MockWorker>>();
        const auto openOrders = std::make_shared<StrictMock<MockWorker>>();
        EXPECT_CALL(*association, isFinishedSuccessfully).WillOnce(Return(succeeded));
        EXPECT_CALL(*openOrders, isFinishedSuccessfully).WillOnce(Return(!succeeded));
        EXPECT_CALL(succeeded ? *openOrders : *association, execute);
        SaleSummaryViewModel(nullptr, association, openOrders, nullptr).tryAgainDoRequests();
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
