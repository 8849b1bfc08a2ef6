#include "Play/Hands.hpp"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QQuickWindow>
#include <QtGui/qtestsupport_gui.h>

namespace demo {

Hands::Hands(QQuickWindow& window)
    : window_(window),
      screen_(QStringLiteral("finger"), 1, QInputDevice::DeviceType::TouchScreen,
              QPointingDevice::PointerType::Finger, QInputDevice::Capability::Position, 1, 0) {}

void Hands::tap(QPointF point, Device device) {
    device == Device::touch ? touch(point) : click(point);
}

void Hands::press(Qt::Key key) {
    // Keyboards have no key of its own for going back.
    const Qt::KeyboardModifiers modifiers =
        key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::KeyboardModifiers();
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers);
        QCoreApplication::sendEvent(&window_, &event);
    }
}

void Hands::click(QPointF point) {
    const QPointF global = window_.mapToGlobal(point);
    QMouseEvent press(QEvent::MouseButtonPress, point, point, global, Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window_, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, point, point, global, Qt::LeftButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(&window_, &release);
}

void Hands::touch(QPointF point) {
    // Only QWindowSystemInterface sets a touch point's position within its window.
    for (const auto state : {QEventPoint::Pressed, QEventPoint::Released}) {
        qt_handleTouchEventv2(&window_, &screen_, {QEventPoint(0, state, point, window_.mapToGlobal(point))});
    }
}

} // namespace demo
