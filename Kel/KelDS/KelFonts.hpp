#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kel {

/// Font tokens. The face is packed into the library and registered with the application on first use; the
/// fonts of the machine play no part.
class KelFonts : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    enum Size {
        Headline1,
        Headline2,
        Headline3,
        Headline4,
        Headline5,
        Headline6,
        Subtitle1,
        Subtitle2,
        Body1,
        Body2,
        Button,
        Caption,
        Overline,
    };
    Q_ENUM(Size)
    enum Weight { Regular, Medium, Bold };
    Q_ENUM(Weight)

    /// The font of a size and a weight; an index outside the tokens gives the nearest one.
    [[nodiscard]] Q_INVOKABLE static QFont font(int size, int weight);
};

} // namespace kel
