import QtQuick
import KelDS

// What lies around the phone-sized area: a shade below the module's ground. The dark ground is deep enough for cards to
// stand out from it.
Rectangle {
    color: KelColors.hasShadows ? Qt.tint(KelColors.background, KelColors.withAlpha(KelColors.lowEmphasis, KelOpacity.low))
                                : KelColors.background
}
