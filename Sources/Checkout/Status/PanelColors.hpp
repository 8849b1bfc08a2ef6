#pragma once

#include "Views/Tokens/HexColor.hpp"

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
    [[nodiscard]] static QColor sent() { return hexColor("#669842", 1).value_or(Qt::transparent); }
    [[nodiscard]] static QColor notSent() { return hexColor("#D55336", 1).value_or(Qt::transparent); }
};

} // namespace quillet
