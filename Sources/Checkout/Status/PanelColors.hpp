#pragma once

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace quillet {

/// The module's own stroke colours, the same in either theme; never used for text.
class PanelColors : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor sent READ sent CONSTANT FINAL)
    Q_PROPERTY(QColor notSent READ notSent CONSTANT FINAL)

public:
    [[nodiscard]] static QColor sent() { return QColor(0x66, 0x98, 0x42); }
    [[nodiscard]] static QColor notSent() { return QColor(0xD5, 0x53, 0x36); }
};

} // namespace quillet
