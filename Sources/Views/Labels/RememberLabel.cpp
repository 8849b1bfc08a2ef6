#include "Views/Labels/RememberLabel.hpp"

#include "Resources/Localization.hpp"

namespace quillet {

RememberLabel RememberLabel::in(const Coloring& colors, const FontsCreating& fonts) {
    const QString first = Localization::remember() + u':';
    const QString second = u' ' + Localization::youCanKeepCollectingSales();
    return {QStringLiteral("<b>%1</b>%2").arg(first.toHtmlEscaped(), second.toHtmlEscaped()), first + second,
            fonts.font(kel::KelFonts::Caption, kel::KelFonts::Regular), colors.highEmphasis()};
}

} // namespace quillet
