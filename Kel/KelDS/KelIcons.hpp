#pragma once

#include "KelDSIcons/KelDSIcons.hpp"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kel {

/// The icon catalogue for QML.
class KelIcons : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString family READ family CONSTANT FINAL)

public:
    [[nodiscard]] static QString family() { return iconFontFamily(); }
    [[nodiscard]] Q_INVOKABLE static QString glyph(int number) { return getIcon(number); }

    /// Names for the catalogue numbers, so that QML needs no literal numbers.
    enum Number {
        CheckCircle = int(KelIconNumber::checkCircle),
        Error = int(KelIconNumber::error),
        Inventory = int(KelIconNumber::inventory),
        LocalMall = int(KelIconNumber::localMall),
        Warning = int(KelIconNumber::warning),
        Calendar = int(KelIconNumber::calendar),
        Schedule = int(KelIconNumber::schedule),
        Close = int(KelIconNumber::close),
        ExpandMore = int(KelIconNumber::expandMore),
        ArrowBack = int(KelIconNumber::arrowBack),
        Share = int(KelIconNumber::share),
        Home = int(KelIconNumber::home),
        Screen = int(KelIconNumber::screen),
        Touch = int(KelIconNumber::touch),
        Cart = int(KelIconNumber::cart),
        Message = int(KelIconNumber::message),
    };
    Q_ENUM(Number)
};

} // namespace kel
