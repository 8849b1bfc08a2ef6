#pragma once

#include "Support/ModuleTest.hpp"
#include "Views/Animation/ViewAnimating.hpp"
#include "Views/Covers/Cover.hpp"

namespace quillet::testing {

/// Tests on a stage of the usual shape, which they may take down.
struct ModuleOnStage : ModuleTest {
    /// Opens the module; only the stack owns the screen afterwards.
    std::weak_ptr<platform::QuickViewController> open() {
        const auto starter = Starter::create("token", "idp", {"cart-1", 41052, "CL"}, host);
        const auto screen = starter->createRootViewController();
        EXPECT_TRUE(present(screen, stage->stack()));
        return screen;
    }

    [[nodiscard]] bool settled() const { return !stage->stack().property("busy").toBool(); }
    /// Whether the item comes to be shown, at rest and under no cover.
    [[nodiscard]] bool comesToShow(const QString& textOrName) const {
        return turnUntil([&] {
            const QQuickItem* const item = stage->item(textOrName);
            return item && settled() && !Cover::isOver(*item);
        });
    }
    /// Clicks what these name, one after the other, each once it is there.
    void clickThrough(const std::vector<QString>& textsOrNames) {
        for (const QString& one : textsOrNames) {
            ASSERT_TRUE(comesToShow(one)) << one.toStdString();
            stage->click(one);
        }
    }

    /// Lets as much time pass on the clock of the animations.
    static void animateFor(std::chrono::milliseconds duration) {
        bool isOver = false;
        ViewAnimatingWrapper().animate(
            duration, [](double) {}, [&] { isOver = true; });
        ASSERT_TRUE(turnUntil([&] { return isOver; }));
    }

    const QString retry = "Actualizar";
    const QString goToCart = "Ir al carrito";
    const QString closeIcon = "dialogCloseIcon";

    std::unique_ptr<Stage> stage = std::make_unique<Stage>();
};

} // namespace quillet::testing
