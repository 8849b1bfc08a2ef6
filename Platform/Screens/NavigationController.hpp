#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>

#include <memory>

class QQmlEngine;

namespace quillet::platform {

class QuickViewController;

/// Pushes screens on a host's StackView. It is a child of the StackView and is destroyed with it. Main thread
/// only.
class NavigationController final : public QObject {
    Q_OBJECT

public:
    /// The navigation controller of a StackView; made when first asked for.
    [[nodiscard]] static NavigationController& of(QQuickItem& stackView);
    /// The navigation controller of a screen's StackView; null without a screen, or if it is on no stack.
    [[nodiscard]] static NavigationController* of(const QuickViewController* screen);

    /// Pushes a screen with the stack's own animation. The stack owns the screen from then on, and popping
    /// destroys it. Returns false and shows nothing if the screen's QML does not load or the screen was shown
    /// before; the reason is logged.
    bool push(const std::shared_ptr<QuickViewController>& screen);

    /// Whether the item is one of the stack's pages. A page that is being popped is not.
    [[nodiscard]] bool holds(const QQuickItem& page) const;

    /// The engine that the host's stack was made with; null once the stack is gone.
    [[nodiscard]] QQmlEngine* engine() const;
    /// The item that overlays cover. If the host named none it is the nearest parent of the StackView that
    /// does not arrange its children, together with a header and footer of an ApplicationWindow; or the
    /// StackView alone, if another visible StackView is in there as well.
    [[nodiscard]] QQuickItem* coverArea() const;
    /// Names the item that overlays cover; null for the default. It must hold the StackView, or is ignored.
    void setCoverArea(QQuickItem* area);

private:
    explicit NavigationController(QQuickItem& stackView);

    QPointer<QQuickItem> stackView_;
    QPointer<QQuickItem> namedCoverArea_;
};

} // namespace quillet::platform
