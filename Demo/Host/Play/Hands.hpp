#pragma once

#include <QPointF>
#include <QPointingDevice>
#include <Qt>

class QQuickItem;
class QQuickWindow;

namespace demo {

/// What a person answers a screen with.
enum class Device { mouse, touch, key };

/// The hands of a person at the window: what they do arrives as the events of real devices. Main thread only.
class Hands {
public:
    explicit Hands(QQuickWindow& window);

    /// Presses and lets go at this point of the window, with the mouse or a finger.
    void tap(QPointF point, Device device);
    /// Brings the focus to the item as the Tab key does and presses Return; false if the item takes no focus.
    bool enter(QQuickItem& item);
    /// Presses a key wherever the focus is.
    void press(Qt::Key key);

private:
    void click(QPointF point);
    void touch(QPointF point);

    QQuickWindow& window_;
    QPointingDevice screen_;
};

} // namespace demo
