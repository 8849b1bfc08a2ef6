#pragma once

#include "Quillet/Starter.hpp"
#include "Quillet/Testing.hpp"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QVariantMap>

#include <functional>
#include <memory>

namespace quillet::benchmarks {

/// A host's window of a phone's size that opens the module. It pushes and pops without an animation. Main
/// thread only.
class ModuleStage {
public:
    /// Over a back end without network.
    ModuleStage();
    /// Over the network that the sessions' default configuration leads to.
    struct Network {};
    explicit ModuleStage(Network);
    ~ModuleStage();
    ModuleStage(const ModuleStage&) = delete;
    ModuleStage& operator=(const ModuleStage&) = delete;

    /// Presents the module. Its two calls are under way then, or answered, as the back end's script says.
    void open();
    /// Pops the module, and waits until all of it is deleted. The next opening has a new back end.
    void close();

    /// Pushes any other page, with these properties; `clear` pops it.
    void show(QQmlComponent& page, const QVariantMap& properties = {});
    void clear();

    /// Draws frames until the condition holds after one; returns how many. Throws std::runtime_error where
    /// it does not within a minute.
    std::size_t drawUntil(const std::function<bool()>& condition);
    /// Waits until the window has drawn one more frame.
    void drawFrame();
    /// Whether anything of the module that was opened last still exists.
    [[nodiscard]] bool isOpen() const { return !screen_.expired(); }
    /// Whether the summary of an order is on the screen.
    [[nodiscard]] bool showsSummary() const;
    /// The module's screens that are on the stack: the summary, the one that sends, and the result.
    [[nodiscard]] int screens() const { return stack_->property("depth").toInt() - 1; }
    /// Does what the button below the summary does.
    void sendProducts();
    /// The gateway that the module calls.
    [[nodiscard]] std::string gateway() const { return starter().domainUrl(); }

    /// There is none over the network.
    [[nodiscard]] testing::ScriptedBackend& backend() const { return *backend_; }
    [[nodiscard]] QQuickWindow& window() const { return *window_; }
    [[nodiscard]] QQuickItem& stack() const { return *stack_; }
    [[nodiscard]] QQmlEngine& engine() { return engine_; }

private:
    explicit ModuleStage(std::shared_ptr<testing::ScriptedBackend> backend);
    [[nodiscard]] Starter starter() const;

    std::shared_ptr<testing::ScriptedBackend> backend_;
    std::shared_ptr<QuilletNavigationDelegate> navigation_;
    QQmlEngine engine_;
    std::unique_ptr<QQuickWindow> window_;
    QQuickItem* stack_ = nullptr;
    std::weak_ptr<platform::QuickViewController> screen_;
};

} // namespace quillet::benchmarks
