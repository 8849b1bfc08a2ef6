#include "KelDS/KelInput.hpp"

#include <QCoreApplication>
#include <QEvent>

namespace kel {

KelInput::KelInput(QObject* parent) : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool KelInput::eventFilter(QObject* watched, QEvent* event) {
    // A window receives each event before its items do.
    if (watched->isWindowType()) {
        const QEvent::Type type = event->type();
        const bool isKey = type == QEvent::KeyPress;
        const bool isPointer = type == QEvent::MouseButtonPress || type == QEvent::TouchBegin;
        if ((isKey || isPointer) && byKeys_ != isKey) {
            byKeys_ = isKey;
            Q_EMIT changed();
        }
    }
    return false;
}

} // namespace kel
