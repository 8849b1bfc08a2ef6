#pragma once

#include "Quillet/Quillet.hpp"
#include "Quillet/Testing.hpp"
#include "Support/Stage.hpp"

#include <KelCommon/KelAnalyticsManager.hpp>

#include <gmock/gmock.h>

namespace quillet::testing {

/// Tests that open the module in a host's window against a scripted back end, and use it.
struct ModuleTest : ::testing::Test {
    ModuleTest() { kel::KelAnalyticsManager::shared()->setSink(std::make_shared<RecordingAnalytics>(log)); }
    ~ModuleTest() override {
        kel::KelAnalyticsManager::shared()->setSink(nullptr);
        ScriptedBackend::uninstall();
        EXPECT_THAT(Stage::complaints(), ::testing::IsEmpty());
    }

    [[nodiscard]] static bool settled(const QQuickItem& stack) { return !stack.property("busy").toBool(); }

    /// Opens the module on this stack, and waits until its page is there.
    [[nodiscard]] bool open(QQuickItem& stack, QQuickItem* covered = nullptr) const {
        const auto starter = Starter::create("token", "idp", {"cart-1", 41052, "CL"}, host);
        // The window and its layouts get their sizes in the event loop.
        return turnUntil([&] { return stack.height() > 0 && stack.window()->isExposed(); }) &&
               present(starter->createRootViewController(), stack, covered) &&
               turnUntil([&] { return settled(stack); });
    }
    [[nodiscard]] bool showsDialog(Stage& stage) const {
        return turnUntil([&] { return stage.shows(viewOrders); });
    }
    /// The dialog of an order that was taken over comes first.
    [[nodiscard]] bool showSummary(Stage& stage) const {
        if (!showsDialog(stage)) {
            return false;
        }
        stage.click(viewOrders);
        return turnUntil([&] { return !stage.shows(viewOrders); });
    }
    /// From the summary on.
    [[nodiscard]] bool showResult(Stage& stage, QQuickItem& stack) const {
        stage.click(send);
        return turnUntil([&] { return stage.shows(someSent) && settled(stack); });
    }

    Log log = makeLog();
    std::shared_ptr<QuilletNavigationDelegate> host = std::make_shared<RecordingNavigation>(log);
    std::shared_ptr<ScriptedBackend> backend = ScriptedBackend::install();
    const QString viewOrders = "Ver Pedidos";
    const QString send = "Enviar productos a mi carrito";
    const QString someSent = "Algunos productos no fueron enviados al carrito. ¡Vea!";
};

} // namespace quillet::testing
