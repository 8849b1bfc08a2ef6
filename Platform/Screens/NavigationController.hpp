#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>

#include <memory>

class QQmlEngine;

namespace quillet::platform {

class QuickViewController;

/// A host's StackView, as the module's screens see it: something to push the next screen on. It is a child of
/// the StackView and goes with it. Main thread only.
class NavigationController final : public QObject {
    Q_OBJECT

public:
    /// The navigation controller of a StackView; made when first asked for.
    [[nodiscard]] static NavigationController& of(QQuickItem& stackView);
    /// That of the StackView that a screen is on; null where there is no screen, or it is on none.
    [[nodiscard]] static NavigationController* of(const QuickViewController* screen);

    /// Pushes a screen, with the stack's own animation. From here on the stack owns the screen: popping it
    /// destroys it. Returns false, having shown nothing, if the QML of the screen does not load or if it has
    /// been shown and left; the reason is logged.
    bool push(const std::shared_ptr<QuickViewController>& screen);

    /// Whether the item is among the stack's pages. One that is being popped is not, from the start of its
    /// way out.
    [[nodiscard]] bool holds(const QQuickItem& page) const;

    /// The engine that the host's stack was made with; null once the stack is gone.
    [[nodiscard]] QQmlEngine* engine() const;
    /// What an overlay covers: the item in which the host keeps the StackView together with its bar.
    [[nodiscard]] QQuickItem* coverArea() const;

private:
    explicit NavigationController(QQuickItem& stackView);

    QPointer<QQuickItem> stackView_;
};

} // namespace quillet::platform
