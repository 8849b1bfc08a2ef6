#pragma once

#include <QPointF>
#include <QPointingDevice>
#include <Qt>

class QQuickWindow;

namespace demo {

/// An input device of a person.
enum class Device { mouse, touch, key };

/// Simulates a person's input at the window as events of real devices. Main thread only.
class Hands {
public:
    explicit Hands(QQuickWindow& window);

    /// Presses and releases at this point of the window, with the mouse or a finger.
    void tap(QPointF point, Device device);
    /// Presses a key wherever the focus is.
    void press(Qt::Key key);

private:
    void click(QPointF point);
    void touch(QPointF point);

    QQuickWindow& window_;
    QPointingDevice screen_;
};

} // namespace demo
