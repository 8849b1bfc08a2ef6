#include "Gallery/GalleryIndex.hpp"

#include "Gallery/GalleryAxes.hpp"
#include "Gallery/GalleryScreens.hpp"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace demo {

namespace {

template <typename Values, typename Name>
QJsonArray names(const Values& values, const Name& name) {
    QJsonArray result;
    for (const auto& value : values) {
        result.append(name(value));
    }
    return result;
}

/// The axes in the order of a picture's name.
QJsonArray axesJson(bool quick) {
    const GalleryAxes axes = galleryAxes(quick);
    const auto axis = [](const char* name, const QJsonArray& values) {
        return QJsonObject{{QStringLiteral("name"), QLatin1String(name)}, {QStringLiteral("values"), values}};
    };
    return {axis("screen", names(galleryScreens(quick), [](const auto& screen) { return screen.name; })),
            axis("theme", names(axes.themes, [](const auto& theme) { return QString(theme.name); })),
            axis("language", names(axes.languages, [](const auto& one) { return QString(one.code); })),
            axis("text size",
                 names(axes.textSizes, [](const auto& one) { return QString::number(one.percent); })),
            axis("size", names(axes.sizes, [](const auto& one) {
                     return QStringLiteral("%1x%2").arg(one.size.width()).arg(one.size.height());
                 }))};
}

} // namespace

std::expected<void, QString> writeGalleryIndex(const QString& folder, bool quick) {
    QFile form(QStringLiteral(":/demo/gallery/index.html"));
    QFile page(folder + QStringLiteral("/index.html"));
    const QByteArray axes = QJsonDocument(axesJson(quick)).toJson(QJsonDocument::Compact);
    if (!form.open(QIODevice::ReadOnly) || !page.open(QIODevice::WriteOnly)) {
        return std::unexpected(QStringLiteral("cannot write ") + page.fileName());
    }
    const QByteArray html = form.readAll().replace("@AXES@", axes);
    if (page.write(html) != html.size()) {
        return std::unexpected(QStringLiteral("cannot write ") + page.fileName());
    }
    return {};
}

} // namespace demo
