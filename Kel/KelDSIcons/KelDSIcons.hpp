#pragma once

#include <QString>

namespace kel {

/// Catalogue numbers of the icons. 126, 132, 265 and 279 are the design system's own numbers; the others
/// follow on.
enum class KelIconNumber {
    checkCircle = 126,
    error = 132,
    inventory = 265,
    localMall = 279,
    warning = 301,
    calendar = 302,
    schedule = 303,
    close = 304,
    expandMore = 305,
    arrowBack = 307,
    share = 308,
    home = 309,
    screen = 310,
    touch = 311,
    cart = 312,
    message = 313,
};

/// The glyph of an icon, to be shown in the font `iconFontFamily()`; an unknown number gives an empty text.
[[nodiscard]] QString getIcon(int number);

/// The family of the icon font, registered with the application on first use.
[[nodiscard]] const QString& iconFontFamily();

} // namespace kel
