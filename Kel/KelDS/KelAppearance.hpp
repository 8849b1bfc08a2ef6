#pragma once

#include "KelDS/KelPalette.hpp"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kel {

/// The user's appearance settings: theme and reduced motion; one for the process. The host sets them from the
/// system's settings, at start or later. Main thread only.
class KelAppearance : public QObject {
    Q_OBJECT
    QML_ANONYMOUS

public:
    [[nodiscard]] static KelAppearance& current();

    [[nodiscard]] KelTheme theme() const { return theme_; }
    [[nodiscard]] const KelPalette& palette() const {
        return theme_ == KelTheme::light ? lightPalette : darkPalette;
    }
    void setTheme(KelTheme theme);

    /// Whether motion is reduced. Then only opacity is animated, and progress indicators.
    [[nodiscard]] bool hasReducedMotion() const { return reducedMotion_; }
    void setReducedMotion(bool reduced);

Q_SIGNALS:
    void changed();

private:
    KelTheme theme_ = KelTheme::light;
    bool reducedMotion_ = false;
};

} // namespace kel
