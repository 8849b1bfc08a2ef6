#include "KeptPictures.hpp"

#include "Comparison.hpp"

#include <QDir>
#include <QImageWriter>

namespace demo::testing {

namespace {

QString kept(const QString& name) {
    return QStringLiteral(QUILLET_KEPT_PICTURES "/%1.png").arg(name);
}

bool write(const QImage& picture, const QString& file) {
    QImageWriter writer(file, "png");
    // Of a PNG this is not the quality: it takes the time to make it as small as can be.
    writer.setQuality(0);
    return writer.write(picture.convertToFormat(QImage::Format_RGB888));
}

} // namespace

bool renewsPictures() {
    return qEnvironmentVariableIsSet("QUILLET_RENEW_PICTURES");
}

bool keepPicture(const QString& name, const QImage& picture) {
    return write(picture, kept(name));
}

std::string differenceFromKept(const QString& name, const QImage& picture) {
    const QImage expected(kept(name));
    if (expected.isNull()) {
        return "There is no picture " + kept(name).toStdString();
    }
    const auto difference = compare(expected, picture);
    if (!difference) {
        return {};
    }
    const QString folder = QStringLiteral(QUILLET_PICTURE_DIFFERENCES);
    std::string message = name.toStdString() + " is not as it is kept: " + difference->description;
    const std::pair<const char*, const QImage*> files[] = {
        {"expected", &expected}, {"actual", &picture}, {"difference", &difference->picture}};
    for (const auto& [what, image] : files) {
        const QString file = QStringLiteral("%1/%2.%3.png").arg(folder, name, QLatin1String(what));
        const bool isWritten = QDir().mkpath(folder) && write(*image, file);
        message += "\n  " + file.toStdString() + (isWritten ? "" : " cannot be written");
    }
    return message;
}

} // namespace demo::testing
