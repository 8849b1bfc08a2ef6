#pragma once

#include "KelCommon/KelAnalyticsManager.hpp"
#include "Quillet/Quillet.hpp"
#include "Quillet/Testing.hpp"
#include "Support/Stage.hpp"
#include "Views/Animation/ViewAnimating.hpp"
#include "Views/Covers/Cover.hpp"

#include <gmock/gmock.h>

namespace quillet::testing {

/// The module on a stage, against a scripted back end. What it tracks and asks of its host is in `log`.
struct ModuleOnStage : ::testing::Test {
    ModuleOnStage() {
        kel::KelAnalyticsManager::shared()->setSink(std::make_shared<RecordingAnalytics>(log));
    }
    ~ModuleOnStage() override {
        kel::KelAnalyticsManager::shared()->setSink(nullptr);
        ScriptedBackend::uninstall();
        EXPECT_THAT(Stage::complaints(), ::testing::IsEmpty());
    }

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

    const QString viewOrders = "Ver Pedidos";
    const QString send = "Enviar productos a mi carrito";
    const QString retry = "Actualizar";
    const QString goToCart = "Ir al carrito";
    const QString closeIcon = "dialogCloseIcon";

    Log log = makeLog();
    std::shared_ptr<QuilletNavigationDelegate> host = std::make_shared<RecordingNavigation>(log);
    std::shared_ptr<ScriptedBackend> backend = ScriptedBackend::install();
    std::unique_ptr<Stage> stage = std::make_unique<Stage>();
};

} // namespace quillet::testing
