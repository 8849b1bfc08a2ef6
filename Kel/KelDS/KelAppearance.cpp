#include "KelDS/KelAppearance.hpp"

namespace kel {

KelAppearance& KelAppearance::current() {
    static KelAppearance appearance;
    return appearance;
}

void KelAppearance::setTheme(KelTheme theme) {
    if (theme != theme_) {
        theme_ = theme;
        Q_EMIT changed();
    }
}

void KelAppearance::setReducedMotion(bool reduced) {
    if (reduced != reducedMotion_) {
        reducedMotion_ = reduced;
        Q_EMIT changed();
    }
}

} // namespace kel
