#include "Gallery/Gallery.hpp"

#include "Gallery/GalleryIndex.hpp"
#include "Gallery/GalleryStage.hpp"
#include "Language.hpp"

#include <QCoreApplication>
#include <QDir>
#include <QImageWriter>
#include <QProcess>

#include <algorithm>
#include <deque>
#include <memory>

namespace demo {

namespace {

constexpr std::size_t atATime = 2;

std::expected<void, QString> write(const QImage& picture, const QString& file) {
    QImageWriter writer(file, "png");
    // Of a PNG this is not the quality but the time that may be spent on making it small.
    writer.setQuality(20);
    if (!writer.write(picture.convertToFormat(QImage::Format_RGB888))) {
        return std::unexpected(QStringLiteral("cannot write ") + file);
    }
    return {};
}

/// All looks of the screen that is open.
std::expected<void, QString> drawLooks(GalleryStage& stage, const GalleryScreen& screen,
                                       const GalleryAxes& axes, const GalleryLanguage& language, QSize size,
                                       const QString& folder) {
    for (const GalleryTheme& theme : axes.themes) {
        for (const GalleryTextSize& textSize : axes.textSizes) {
            const auto picture = stage.picture(theme, textSize);
            if (!picture) {
                return std::unexpected(screen.name + QStringLiteral(": ") + picture.error());
            }
            const QString name = pictureName(screen.name, {theme, language, textSize, size});
            if (auto written = write(*picture, folder + u'/' + name); !written) {
                return written;
            }
        }
    }
    return {};
}

std::unique_ptr<QProcess> startLanguage(const GalleryLanguage& language, const QString& folder, bool quick) {
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    QStringList arguments{QStringLiteral("--gallery"), folder, QStringLiteral("--gallery-language"),
                          QLatin1String(language.code)};
    if (quick) {
        arguments << QStringLiteral("--quick");
    }
    process->start(QCoreApplication::applicationFilePath(), arguments);
    return process;
}

} // namespace

std::expected<void, QString> drawGallery(const QString& folder, bool quick) {
    // The page can be looked at while the pictures come.
    if (auto written = writeGalleryIndex(folder, quick); !written) {
        return written;
    }
    const GalleryAxes axes = galleryAxes(quick);
    std::deque<GalleryLanguage> waiting(axes.languages.begin(), axes.languages.end());
    std::deque<std::unique_ptr<QProcess>> running;
    bool allWell = true;
    while (!waiting.empty() || !running.empty()) {
        while (!waiting.empty() && running.size() < atATime) {
            running.push_back(startLanguage(waiting.front(), folder, quick));
            waiting.pop_front();
        }
        QProcess& oldest = *running.front();
        const bool ended = oldest.waitForFinished(-1) && oldest.exitStatus() == QProcess::NormalExit;
        allWell = ended && oldest.exitCode() == 0 && allWell;
        running.pop_front();
    }
    if (!allWell) {
        return std::unexpected(QStringLiteral("the gallery has gaps or warnings"));
    }
    return {};
}

std::expected<void, QString> drawGalleryIn(const QString& language, const QString& folder, bool quick) {
    const GalleryAxes axes = galleryAxes(quick);
    const auto chosen =
        std::ranges::find(axes.languages, language, [](const auto& one) { return QString(one.code); });
    if (chosen == axes.languages.end()) {
        return std::unexpected(QStringLiteral("the gallery has no language ") + language);
    }
    useLanguage(language);
    GalleryStage stage;
    for (const GallerySize& size : axes.sizes) {
        for (const GalleryScreen& screen : galleryScreens(quick)) {
            auto done = stage.open(screen, size.size);
            if (done) {
                done = drawLooks(stage, screen, axes, *chosen, size.size, folder);
            }
            if (!done) {
                return done;
            }
        }
    }
    return {};
}

} // namespace demo
