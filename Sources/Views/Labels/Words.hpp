#pragma once

#include <QFont>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace quillet {

/// Measures words for QML.
class Words : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// Whether a text can be set in lines of this width without breaking inside a word. `width` is in
    /// device-independent pixels.
    [[nodiscard]] Q_INVOKABLE static bool fit(const QString& text, const QFont& font, double width);
};

} // namespace quillet
