#pragma once

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillet::testing {

/// Runs the event loop until the condition holds; false if it does not within half a minute.
[[nodiscard]] bool turnUntil(const std::function<bool()>& condition);

/// The same within a given time.
[[nodiscard]] bool turnUntilFor(std::chrono::milliseconds longest, const std::function<bool()>& condition);

/// A host's window with a bar and a StackView below it, and the warnings of QML meanwhile. In Qt tests Qt's
/// animations run faster than in real time.
class Stage {
public:
    /// `host` is the QML of another host's window, with a `stack` and a `bar` among its properties.
    explicit Stage(const char* host = nullptr);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    [[nodiscard]] QQuickItem& stack() const;
    [[nodiscard]] QQuickItem& bar() const;
    [[nodiscard]] QQuickWindow& window() const { return *window_; }
    [[nodiscard]] int depth() const { return stack().property("depth").toInt(); }
    /// The number of clicks on the bar.
    [[nodiscard]] int barClicks() const { return bar().property("clicks").toInt(); }
    /// Pops the topmost screen, as the host's back button does.
    void pop();
    /// The same with an animation, during which the screen is still visible.
    void popSlowly(std::chrono::milliseconds wayOut);
    /// Pops everything above the host's own page, without an animation.
    void popAll();

    /// Whether a visible item has this `text` or object name.
    [[nodiscard]] bool shows(const QString& textOrName) const { return item(textOrName) != nullptr; }
    /// These use the item's centre, and throw if there is no such item.
    void press(const QString& textOrName);
    void click(const QString& textOrName);
    void clickBar();
    /// Any item by `text` or object name; null if there is none.
    [[nodiscard]] QQuickItem* item(const QString& textOrName) const;
    /// Moves what was pressed there and lets go.
    void releaseAt(QPointF point);
    void clickAt(QPointF point);
    /// The same with a finger: down and up again.
    void touch(const QString& textOrName) { touchAt(middle(textOrName)); }
    void touchAt(QPointF point);
    /// Several clicks or touches so fast that Qt takes two for a double click; up to three.
    void tapRepeatedly(QPointF point, int times, bool byFinger);
    /// One finger stays down at the first point while another taps at the second.
    void touchWhileResting(QPointF resting, QPointF tapped);
    /// Turns the mouse's wheel by one step, towards oneself.
    void wheelAt(QPointF point);
    /// Presses as a screen reader does.
    void pressByScreenReader(const QString& textOrName);
    /// Presses and releases a key.
    void key(Qt::Key key);
    /// An auto-repeat of a held key.
    void repeatKey(Qt::Key key);
    /// The item with the keyboard focus.
    [[nodiscard]] QQuickItem* focus() const { return window_->activeFocusItem(); }

    [[nodiscard]] QPointF middle(const QString& textOrName) const;

    /// Messages of QML and of the module's navigation to the message handler.
    [[nodiscard]] static std::vector<std::string> complaints();

private:
    std::unique_ptr<QQmlEngine> engine_;
    std::unique_ptr<QQuickWindow> window_;
};

} // namespace quillet::testing
