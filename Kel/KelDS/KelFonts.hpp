#pragma once

#include "KelDS/KelAppearance.hpp"

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
    /// The factor that texts, and what stands beside them, are enlarged by.
    Q_PROPERTY(double scale READ scale NOTIFY changed FINAL)

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

    explicit KelFonts(QObject* parent = nullptr);

    /// The font of a size and a weight, enlarged by the text scale in force; an index outside the tokens
    /// gives the nearest one.
    [[nodiscard]] static QFont font(int size, int weight) { return scaled(size, weight, scale()); }
    /// The same enlarged by another factor; for QML, where a binding has to name what it depends on.
    [[nodiscard]] Q_INVOKABLE static QFont scaled(int size, int weight, double scale);
    [[nodiscard]] static double scale() { return KelAppearance::current().textScale(); }

Q_SIGNALS:
    void changed();
};

} // namespace kel
