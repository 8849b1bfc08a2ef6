#include "KelDS/KelFonts.hpp"

#include <QFontDatabase>
#include <QResource>

#include <algorithm>
#include <array>
#include <cmath>

// The macro has to stand outside any namespace; see KelDSIcons.
static void initFontResources() {
    Q_INIT_RESOURCE(kel_fonts);
}

namespace kel {

namespace {

constexpr std::array pixelSizes{96, 60, 48, 34, 24, 20, 16, 14, 16, 14, 14, 12, 10};
// From this size up the display cut of the face is used.
constexpr int smallestDisplaySize = 24;

/// A resource's bytes where they are in the program, unless they are packed there. Qt would read them into
/// memory, a quarter of a megabyte a face and more.
QByteArray bytesOf(const QString& path) {
    const QResource resource(path);
    return resource.compressionAlgorithm() == QResource::NoCompression
               ? QByteArray::fromRawData(reinterpret_cast<const char*>(resource.data()), resource.size())
               : resource.uncompressedData();
}

void registerFaces() {
    static const bool once = [] {
        initFontResources();
        for (const char* face : {"Inter-Regular", "Inter-Medium", "Inter-SemiBold", "Inter-Bold",
                                 "InterDisplay-Regular", "InterDisplay-Medium", "InterDisplay-SemiBold"}) {
            QFontDatabase::addApplicationFontFromData(
                bytesOf(QStringLiteral(":/kel/fonts/%1.otf").arg(QLatin1String(face))));
        }
        return true;
    }();
    static_cast<void>(once);
}

} // namespace

KelFonts::KelFonts(QObject* parent) : QObject(parent) {
    connect(&KelAppearance::current(), &KelAppearance::changed, this, &KelFonts::changed);
}

QFont KelFonts::scaled(int size, int weight, double scale) {
    registerFaces();
    static constexpr QFont::Weight weights[] = {QFont::Normal, QFont::Medium, QFont::DemiBold};
    const int pixels = pixelSizes[static_cast<std::size_t>(std::clamp(size, 0, int(Overline)))];
    QFont result(pixels < smallestDisplaySize ? QStringLiteral("Inter") : QStringLiteral("Inter Display"));
    result.setPixelSize(static_cast<int>(std::lround(pixels * scale)));
    result.setWeight(weights[std::clamp(weight, 0, 2)]);
    return result;
}

} // namespace kel
