#include "Checkout/CheckoutFactory.hpp"
#include "Support/ModuleTest.hpp"
#include "Workers/CheckoutWorkerFactory.hpp"

#include <QCoreApplication>

namespace quillet::testing {

namespace {

using ::testing::ElementsAre;

struct CheckoutScreen : ModuleTest {
    std::shared_ptr<platform::QuickViewController> open() {
        const auto screen = CheckoutFactory(std::make_unique<CheckoutWorkerFactory>(
                                                "CL", 41052, Authorization{"jwt", "idp"}, "gateway.test"),
                                            std::make_unique<CheckoutConfigurator>(), host)
                                .create();
        EXPECT_TRUE(present(screen, stage.stack()));
        return screen;
    }
    [[nodiscard]] bool settles(int depth) const {
        return turnUntil([&] { return stage.depth() == depth && settled(stage.stack()); });
    }

    Stage stage;
};

} // namespace

TEST_F(CheckoutScreen, LooksAtTheStatusForErrorsOnly) {
    const QString all = "Vea los productos que fueron enviados al carrito.";
    const QString none = "Infelizmente niguno de los productos fue enviado al carrito.";
    const QString generic = "¡Ups, tuvimos un problema!";
    const struct {
        QString message;
        std::int64_t status;
        QString shown;
    } cases[] = {
        {"CART_SUBMITTED_SUCCESS", 200, all},
        {"CART_SUBMITTED_SUCCESS", 422, all},
        {"CART_SUBMITTED_PARTIAL_SUCCESS", 200, someSent},
        {"CART_SUBMITTED_PARTIAL_SUCCESS", 500, someSent},
        {"CART_SUBMITTED_ERROR", 422, none},
        {"CART_SUBMITTED_ERROR", 200, generic},
        {"CART_SUBMITTED_ERROR", 400, generic},
    };
    for (const auto& [message, status, shown] : cases) {
        QString body = QString::fromStdString(sampleBody(Call::checkout));
        body.replace("CART_SUBMITTED_PARTIAL_SUCCESS", message);
        backend->script(Call::checkout, {Reply{.status = status, .body = body.toStdString()}});
        open();
        ASSERT_TRUE(turnUntil([&] { return !log->empty(); }));
        EXPECT_TRUE(stage.shows(shown)) << shown.toStdString() << status;
        EXPECT_THAT(taken(log),
                    ElementsAre(shown == generic ? "screen Error" : "screen Feedback de produtos"));
        stage.popAll();
    }
}

TEST_F(CheckoutScreen, GoesOnUnderAPageThatCoversItAndChecksOutOnceHoweverOftenItAppears) {
    backend->script(Call::checkout, {Reply{.status = 500, .after = std::chrono::seconds(5)}});
    const auto screen = open();
    open();
    ASSERT_TRUE(settles(3));
    backend->clock()->advance(std::chrono::seconds(5));
    QCoreApplication::processEvents();
    EXPECT_THAT(taken(log), ElementsAre("screen Error", "screen Error"));
    screen->setTitle({});
    stage.pop();
    ASSERT_TRUE(settles(2));
    EXPECT_TRUE(stage.shows("Actualizar"));
    EXPECT_EQ(screen->title(), "Envío al carrito");
    EXPECT_EQ(backend->requests().size(), 2u);
}

} // namespace quillet::testing
