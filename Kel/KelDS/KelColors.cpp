#include "KelDS/KelColors.hpp"

namespace kel {

KelColors::KelColors(QObject* parent) : QObject(parent) {
    connect(&KelAppearance::current(), &KelAppearance::changed, this, &KelColors::changed);
}

QColor KelColors::withAlpha(QColor color, double alpha) {
    color.setAlphaF(static_cast<float>(alpha));
    return color;
}

} // namespace kel
