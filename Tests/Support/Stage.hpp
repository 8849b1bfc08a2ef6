#pragma once

#include <QMouseEvent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillet::testing {

/// Lets the event loop turn until the condition holds; false if it does not within half a minute.
[[nodiscard]] bool turnUntil(const std::function<bool()>& condition);

/// A host's window with a bar and a StackView below it, and what QML complained of meanwhile.
class Stage {
public:
    Stage();
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    [[nodiscard]] QQuickItem& stack() const;
    [[nodiscard]] QQuickItem& bar() const;
    [[nodiscard]] int depth() const { return stack().property("depth").toInt(); }
    /// How often the bar was clicked.
    [[nodiscard]] int barClicks() const { return bar().property("clicks").toInt(); }
    /// Takes the topmost screen away, as the host's way back does.
    void pop();
    /// The same, with a while in which the screen is still to be seen.
    void popSlowly(std::chrono::milliseconds wayOut);
    /// Takes everything above the host's own page away, without an animation.
    void popAll();

    /// Whether a visible item has this `text` or object name.
    [[nodiscard]] bool shows(const QString& textOrName) const { return item(textOrName) != nullptr; }
    /// These take the middle of the item and throw where there is none.
    void press(const QString& textOrName);
    void click(const QString& textOrName);
    void clickBar();
    /// Any item, for what cannot be done with the mouse; null if there is none.
    [[nodiscard]] QQuickItem* item(const QString& textOrName) const;
    void releaseAt(QPointF point) { mouse(QEvent::MouseButtonRelease, point); }
    void clickAt(QPointF point);
    /// The same with a finger: down and up again.
    void touch(const QString& textOrName) { touchAt(middle(textOrName)); }
    void touchAt(QPointF point);
    /// A finger stays down at the one point while another one taps at the other.
    void touchWhileResting(QPointF resting, QPointF tapped);
    /// As a screen reader does.
    void pressByScreenReader(const QString& textOrName);
    /// A key of whatever has the focus: down and up again.
    void key(Qt::Key key);
    /// The key goes down once more without having been up, as it does while it is held.
    void repeatKey(Qt::Key key);
    /// What the keys go to.
    [[nodiscard]] QQuickItem* focus() const { return window_->activeFocusItem(); }

    [[nodiscard]] QPointF middle(const QString& textOrName) const;

    /// What went to the message handler from QML or from the module's navigation.
    [[nodiscard]] static std::vector<std::string> complaints();

private:
    void mouse(QEvent::Type type, QPointF point);

    std::unique_ptr<QQmlEngine> engine_;
    std::unique_ptr<QQuickWindow> window_;
};

} // namespace quillet::testing
