#pragma once

#include "KelDS/KelPalette.hpp"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kel {

/// What a person set for everything that is shown: theme, size of text, reduced motion; one for the process.
/// The host sets them from the system's settings, at start or later, and what is on screen follows. Main
/// thread only.
class KelAppearance : public QObject {
    Q_OBJECT
    QML_ANONYMOUS

public:
    [[nodiscard]] static KelAppearance& current();

    [[nodiscard]] KelTheme theme() const { return theme_; }
    [[nodiscard]] const KelPalette& palette() const {
        return theme_ == KelTheme::light  ? lightPalette
               : theme_ == KelTheme::dark ? darkPalette
                                          : contrastPalette;
    }
    void setTheme(KelTheme theme);

    /// The factor that every text is enlarged by, from 1 to 2; a value beyond is taken for the nearer end.
    [[nodiscard]] double textScale() const { return textScale_; }
    void setTextScale(double scale);

    /// Whether motion is reduced. Then only opacity is animated, for a short time, and progress indicators.
    [[nodiscard]] bool hasReducedMotion() const { return reducedMotion_; }
    void setReducedMotion(bool reduced);

Q_SIGNALS:
    void changed();

private:
    KelTheme theme_ = KelTheme::light;
    double textScale_ = 1;
    bool reducedMotion_ = false;
};

} // namespace kel
