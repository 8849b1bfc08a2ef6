#pragma once

#include "Quillet/Quillet.hpp"
#include "Quillet/Testing.hpp"
#include "Support/Stage.hpp"
#include "Views/Animation/ViewAnimating.hpp"
#include "Views/Covers/Cover.hpp"

#include <KelCommon/KelAnalyticsManager.hpp>

#include <gmock/gmock.h>

namespace quillet::testing {

/// Tests that open the module in a host's window against a scripted back end, and use it. They may take the
/// window down, or put another one in its place.
struct ModuleTest : ::testing::Test {
    ModuleTest() { kel::KelAnalyticsManager::shared()->setSink(std::make_shared<RecordingAnalytics>(log)); }
    ~ModuleTest() override {
        kel::KelAnalyticsManager::shared()->setSink(nullptr);
        ScriptedBackend::uninstall();
        EXPECT_THAT(Stage::complaints(), ::testing::IsEmpty());
    }

    /// Opens the module; only the stack owns the screen afterwards.
    std::weak_ptr<platform::QuickViewController> open(QQuickItem* covered = nullptr) {
        const auto starter = Starter::create("token", "idp", {"cart-1", 41052, "CL"}, host);
        const auto screen = starter->createRootViewController();
        EXPECT_TRUE(present(screen, stage->stack(), covered));
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
    /// Clicks what these name, one after the other, each once it is there, until this is shown.
    void clickThrough(const std::vector<QString>& textsOrNames, const QString& goal = {}) {
        for (const QString& one : textsOrNames) {
            ASSERT_TRUE(comesToShow(one)) << one.toStdString();
            stage->click(one);
        }
        ASSERT_TRUE(goal.isEmpty() || comesToShow(goal)) << goal.toStdString();
    }

    /// Lets as much time pass on the clock of the animations.
    static void animateFor(std::chrono::milliseconds duration) {
        bool isOver = false;
        ViewAnimatingWrapper().animate(
            duration, [](double) {}, [&] { isOver = true; });
        ASSERT_TRUE(turnUntil([&] { return isOver; }));
    }

    Log log = makeLog();
    std::shared_ptr<QuilletNavigationDelegate> host = std::make_shared<RecordingNavigation>(log);
    std::shared_ptr<ScriptedBackend> backend = ScriptedBackend::install();
    std::shared_ptr<Stage> stage = std::make_shared<Stage>();

    const QString viewOrders = "Ver Pedidos";
    const QString send = "Enviar productos a mi carrito";
    const QString someSent = "Algunos productos no fueron enviados al carrito. ¡Vea!";
    const QString retry = "Actualizar";
    const QString goToCart = "Ir al carrito";
    const QString closeIcon = "dialogCloseIcon";
};

} // namespace quillet::testing
