#include "KelDS/KelAppearance.hpp"

#include <algorithm>

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

void KelAppearance::setTextScale(double scale) {
    // A value that is no number is refused by the comparison.
    const double within = scale > 1 ? std::min(scale, 2.0) : 1.0;
    if (within != textScale_) {
        textScale_ = within;
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
