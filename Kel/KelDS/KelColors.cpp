#include "KelDS/KelColors.hpp"

namespace kel {

KelPalettes& KelPalettes::current() {
    static KelPalettes palettes;
    return palettes;
}

void KelPalettes::setTheme(KelTheme theme) {
    if (theme != theme_) {
        theme_ = theme;
        Q_EMIT changed();
    }
}

KelColors::KelColors(QObject* parent) : QObject(parent) {
    connect(&KelPalettes::current(), &KelPalettes::changed, this, &KelColors::changed);
}

QColor KelColors::veil() {
    const QColor ground =
        KelPalettes::current().theme() == KelTheme::light ? highEmphasis() : QColor(Qt::black);
    return withAlpha(ground, opacity::mediumHigh);
}

QColor KelColors::withAlpha(QColor color, double alpha) {
    color.setAlphaF(static_cast<float>(alpha));
    return color;
}

} // namespace kel
