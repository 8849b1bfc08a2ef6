#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kel {

/// Font tokens: a size index (see kFontSizes) and a weight index (0 regular, 1 medium, 2 bold). The face is
/// packed into the library and registered with the application on first use; the fonts of the machine play no
/// part.
class KelFonts : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// An index outside the tables gives the nearest token.
    [[nodiscard]] Q_INVOKABLE static QFont font(int size, int weight);
};

} // namespace kel
