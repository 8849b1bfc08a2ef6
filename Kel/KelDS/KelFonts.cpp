#include "KelDS/KelFonts.hpp"

#include "KelDS/KelTokens.hpp"

#include <QFontDatabase>

#include <algorithm>

// The macro has to stand outside any namespace; see KelDSIcons.
static void initFontResources() {
    Q_INIT_RESOURCE(kel_fonts);
}

namespace kel {

namespace {

void registerFaces() {
    static const bool once = [] {
        initFontResources();
        for (const char* face : {"Inter-Regular", "Inter-Medium", "Inter-SemiBold", "Inter-Bold",
                                 "InterDisplay-Regular", "InterDisplay-Medium", "InterDisplay-SemiBold"}) {
            QFontDatabase::addApplicationFont(QStringLiteral(":/kel/fonts/%1.otf").arg(QLatin1String(face)));
        }
        return true;
    }();
    static_cast<void>(once);
}

} // namespace

QFont KelFonts::font(int size, int weight) {
    registerFaces();
    static constexpr QFont::Weight weights[] = {QFont::Normal, QFont::Medium, QFont::DemiBold};
    const int pixels = kFontSizes[static_cast<std::size_t>(std::clamp(size, 0, int(kFontSizes.size()) - 1))];
    QFont result(pixels < kDisplayFrom ? QStringLiteral("Inter") : QStringLiteral("Inter Display"));
    result.setPixelSize(pixels);
    result.setWeight(weights[std::clamp(weight, 0, 2)]);
    return result;
}

} // namespace kel
