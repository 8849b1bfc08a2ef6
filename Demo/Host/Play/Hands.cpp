#include "Play/Hands.hpp"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QQuickItem>
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

bool Hands::enter(QQuickItem& item) {
    item.forceActiveFocus(Qt::TabFocusReason);
    if (!item.hasActiveFocus()) {
        return false;
    }
    press(Qt::Key_Return);
    return true;
}

void Hands::press(Qt::Key key) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, {});
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
