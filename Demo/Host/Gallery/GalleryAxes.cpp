#include "Gallery/GalleryAxes.hpp"

namespace demo {

namespace {

const GalleryAxes everything{
    .themes = {{"light", kel::KelTheme::light, true},
               {"dark", kel::KelTheme::dark, true},
               {"contrast", kel::KelTheme::contrast, false}},
    .languages = {{"es", true}, {"pt", false}, {"en", false}, {"xa", false}, {"xb", true}},
    .textSizes = {{100, true}, {150, false}, {200, true}},
    .sizes = {{{320, 568}, true}, {{390, 844}, false}, {{844, 390}, true}, {{1280, 800}, false}},
};

} // namespace

GalleryAxes galleryAxes(bool quick) {
    GalleryAxes axes = everything;
    if (quick) {
        const auto isLeftOut = [](const auto& value) { return !value.quick; };
        std::erase_if(axes.themes, isLeftOut);
        std::erase_if(axes.languages, isLeftOut);
        std::erase_if(axes.textSizes, isLeftOut);
        std::erase_if(axes.sizes, isLeftOut);
    }
    return axes;
}

QString pictureName(const QString& screen, const GalleryLook& look) {
    return QStringLiteral("%1.%2.%3.%4.%5x%6.png")
        .arg(screen, QLatin1String(look.theme.name), QLatin1String(look.language.code))
        .arg(look.textSize.percent)
        .arg(look.size.width())
        .arg(look.size.height());
}

} // namespace demo
