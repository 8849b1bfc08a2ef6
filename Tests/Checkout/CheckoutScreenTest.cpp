#include "Checkout/CheckoutFactory.hpp"
#include "Support/ModuleTest.hpp"
#include "Workers/CheckoutWorkerFactory.hpp"

#include <QCoreApplication>

namespace quillet::testing {

using CheckoutScreen = ModuleTest;

TEST_F(CheckoutScreen, GoesOnUnderAPageThatCoversItAndChecksOutOnceHoweverOftenItAppears) {
    backend->script(Call::checkout, {Reply{.status = 500, .after = std::chrono::seconds(5)}});
    const CheckoutFactory factory(
        std::make_unique<CheckoutWorkerFactory>("CL", 41052, Authorization{"jwt", "idp"}, "gateway.test"),
        std::make_unique<CheckoutConfigurator>(), host);
    const auto covered = factory.create();
    for (const auto& screen : {covered, factory.create()}) {
        ASSERT_TRUE(present(screen, stage->stack()));
    }
    ASSERT_TRUE(turnUntil([&] { return stage->depth() == 3 && settled(); }));
    backend->clock()->advance(std::chrono::seconds(5));
    QCoreApplication::processEvents();
    EXPECT_THAT(taken(log), ::testing::ElementsAre("screen Error", "screen Error"));
    covered->setTitle({});
    stage->pop();
    ASSERT_TRUE(turnUntil([&] { return stage->depth() == 2 && settled(); }));
    EXPECT_TRUE(stage->shows(retry));
    EXPECT_EQ(covered->title(), "Envío al carrito");
    EXPECT_EQ(backend->requests().size(), 2u);
}

} // namespace quillet::testing
