#include "ControlsSheet.hpp"
#include "Gallery/Gallery.hpp"
#include "HostApplication.hpp"
#include "Language.hpp"
#include "Options.hpp"
#include "Play/LanguagePlay.hpp"
#include "Play/PlayRunner.hpp"
#include "Play/WarningCounter.hpp"
#include "Sandbox/NetworkSwitch.hpp"
#include "Sandbox/Platform.hpp"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <cstdio>
#include <optional>

namespace {

constexpr int failed = 1;
constexpr int usage = 2;

int complain(const QString& line, int status) {
    std::fprintf(stderr, "quillet-host: %s\n", qUtf8Printable(line));
    return status;
}

std::expected<std::vector<demo::PlayScript>, QString> readPlays(const demo::Options& options) {
    QStringList files;
    if (options.mode == demo::Options::Mode::play) {
        files << options.playFile;
    } else {
        for (const QString& name : QDir(QStringLiteral(":/demo/plays")).entryList(QDir::Files, QDir::Name)) {
            files << QStringLiteral(":/demo/plays/") + name;
        }
    }
    std::vector<demo::PlayScript> plays;
    for (const QString& path : files) {
        QFile file(path);
        if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
            return std::unexpected(QStringLiteral("cannot read the play ") + path);
        }
        auto play = demo::parsePlay(QFileInfo(path).completeBaseName(), QString::fromUtf8(file.readAll()));
        if (!play) {
            return std::unexpected(play.error());
        }
        play->source = path;
        plays.push_back(std::move(*play));
    }
    return plays;
}

/// Runs the play here and prints how it went.
QJsonObject performHere(const demo::PlayScript& play, demo::PlayRunner& runner) {
    const int warned = demo::WarningCounter::count();
    const QJsonObject report = runner.run(play);
    const bool met = report[QStringLiteral("ok")].toBool();
    std::printf("%s  %s\n", met ? "ok    " : "FAILED", qUtf8Printable(play.name));
    if (!met) {
        const QJsonObject step = report[QStringLiteral("steps")].toArray().last().toObject();
        std::printf("        %s\n        %s\n", qUtf8Printable(step[QStringLiteral("step")].toString()),
                    qUtf8Printable(step[QStringLiteral("missing")].toString()));
    }
    if (demo::WarningCounter::count() > warned) {
        std::printf("        warnings, on standard error: %d\n", demo::WarningCounter::count() - warned);
    }
    std::fflush(stdout);
    return report;
}

int perform(const std::vector<demo::PlayScript>& plays, demo::PlayRunner& runner,
            const demo::Options& options) {
    QJsonArray reports;
    bool ok = true;
    for (const demo::PlayScript& play : plays) {
        const bool elsewhere = play.hasLanguage && options.mode == demo::Options::Mode::tour;
        const QJsonObject report =
            elsewhere ? demo::runLanguagePlay(QCoreApplication::applicationFilePath(), play, options)
                      : performHere(play, runner);
        if (!report.contains(QStringLiteral("steps"))) {
            std::printf("FAILED  %s\n        its own process came to no end\n", qUtf8Printable(play.name));
            std::fflush(stdout);
        }
        ok = ok && report[QStringLiteral("ok")].toBool();
        reports.append(report);
    }
    QFile file(options.outFolder + QStringLiteral("/tour.json"));
    const QByteArray json = QJsonDocument(QJsonObject{{QStringLiteral("plays"), reports}}).toJson();
    if (!file.open(QIODevice::WriteOnly) || file.write(json) != json.size()) {
        return complain(QStringLiteral("cannot write ") + file.fileName(), failed);
    }
    return ok ? 0 : failed;
}

int drawSheet(const QString& file) {
    const auto drawn = demo::drawControls(file);
    return drawn ? 0 : complain(drawn.error(), failed);
}

int drawGallery(const demo::Options& options) {
    const auto drawn = options.galleryLanguage.isEmpty()
                           ? demo::drawGallery(options.outFolder, options.quick)
                           : demo::drawGalleryIn(options.galleryLanguage, options.outFolder, options.quick);
    return drawn ? 0 : complain(drawn.error(), failed);
}

/// What is drawn or played without a display has a phone's pixel density. A gallery has one pixel to each
/// point and one renderer everywhere, so that it stays small and is the same on every machine.
void setUpPictures(bool isGallery) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", isGallery ? "1" : "2");
    if (isGallery) {
        qputenv("QT_QUICK_BACKEND", "software");
    }
}

/// Sets up the gateway and the host and runs what was asked for. It cleans up before it returns.
int runHost(const demo::Options& options, const std::vector<demo::PlayScript>& plays) {
    const bool inWindow = options.mode == demo::Options::Mode::window;
    QTemporaryDir freshData;
    demo::GatewayProcess gateway;
    demo::GatewayProcess::Settings settings{
        .program = options.gatewayProgram.isEmpty()
                       ? QCoreApplication::applicationDirPath() + QStringLiteral("/quillet-gateway")
                       : options.gatewayProgram,
        .dataFolder = !inWindow || options.dataFolder.isEmpty() ? freshData.path() : options.dataFolder,
        .port = options.port,
        .reset = !inWindow || options.reset};
    demo::LiveStatus status;
    demo::GatewayAddress address{options.gatewayHost.value_or(QString()), options.gatewayPort,
                                 options.caFile};
    QByteArray orders;
    if (options.gatewayHost) {
        status.gatewayElsewhere(address);
    } else {
        QDir().mkpath(settings.dataFolder);
        const auto started = gateway.start(settings);
        if (!started) {
            return complain(started.error(), failed);
        }
        address = *started;
        orders = demo::GatewayProcess::seededOrders(settings);
        status.gatewayStarted();
        gateway.whenEnded(status, [&status] { status.gatewayEnded(); });
    }

    const auto journal = std::make_shared<demo::Journal>();
    // In interactive use the system's network path is used.
    const auto network = inWindow ? nullptr : std::make_shared<demo::NetworkSwitch>(address);
    demo::configurePlatform(network ? network->address() : address, journal, network);
    demo::PhoneArea area(options.size, inWindow);
    const auto host = std::make_shared<demo::HostApplication>(*journal, status, area, orders);
    if (!host->load(host)) {
        return complain(QStringLiteral("the window does not load"), failed);
    }
    if (inWindow) {
        return QGuiApplication::exec();
    }
    demo::PlayRunner runner(*host, *journal, *network, options.appearance, options.outFolder);
    const int result = perform(plays, runner, options);
    if (!options.gatewayHost) {
        const QString log = options.outFolder + QStringLiteral("/gateway.log");
        QFile::remove(log);
        QFile::copy(settings.dataFolder + QStringLiteral("/gateway.log"), log);
    }
    return result;
}

int run(const demo::Options& options, const std::vector<demo::PlayScript>& plays) {
    switch (options.mode) {
    case demo::Options::Mode::controls:
        return drawSheet(options.controlsFile);
    case demo::Options::Mode::gallery:
        return drawGallery(options);
    case demo::Options::Mode::window:
    case demo::Options::Mode::tour:
    case demo::Options::Mode::play:
        break;
    }
    return runHost(options, plays);
}

} // namespace

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    const auto options = demo::parseOptions(arguments);
    if (!options) {
        return options.error().isEmpty() ? 0 : complain(options.error(), usage);
    }
    const bool inWindow = options->mode == demo::Options::Mode::window;
    const bool isPlay =
        options->mode == demo::Options::Mode::tour || options->mode == demo::Options::Mode::play;
    std::vector<demo::PlayScript> plays;
    if (isPlay) {
        auto read = readPlays(*options);
        if (!read) {
            return complain(read.error(), usage);
        }
        plays = std::move(*read);
    }
    if (!options->outFolder.isEmpty() && !QDir().mkpath(options->outFolder)) {
        return complain(QStringLiteral("cannot make the folder ") + options->outFolder, failed);
    }
    if (!inWindow) {
        setUpPictures(options->mode == demo::Options::Mode::gallery);
    }

    const QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("quillet-host"));
    demo::useLanguage(options->language);
    demo::apply(options->appearance);

    const demo::WarningCounter warnings;
    const int status = run(*options, plays);
    if (inWindow || demo::WarningCounter::count() == 0) {
        return status;
    }
    std::printf("FAILED  warnings of Qt or QML, on standard error: %d\n", demo::WarningCounter::count());
    return failed;
}
