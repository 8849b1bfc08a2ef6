#pragma once

#include "KelDS/KelPalette.hpp"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kel {

/// How the person at the device wants screens to look and move; one for the process. The host sets it, before
/// it shows anything or at any time later, from what its platform tells of the system's settings. Main thread
/// only.
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

    /// Whether things may move. With reduced motion only opacity does, and what tells by
    /// its motion that something goes on.
    [[nodiscard]] bool hasReducedMotion() const { return reducedMotion_; }
    void setReducedMotion(bool reduced);

Q_SIGNALS:
    void changed();

private:
    KelTheme theme_ = KelTheme::light;
    bool reducedMotion_ = false;
};

} // namespace kel
