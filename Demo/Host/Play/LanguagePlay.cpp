#include "Play/LanguagePlay.hpp"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

namespace demo {

namespace {

/// Far longer than any of these plays takes.
constexpr int longest = 120'000;

QStringList argumentsFor(const PlayScript& play, const Options& tour, const QString& folder) {
    QStringList arguments{
        QStringLiteral("--play"), play.source,
        QStringLiteral("--out"),  folder,
        QStringLiteral("--size"), QStringLiteral("%1x%2").arg(tour.size.width()).arg(tour.size.height())};
    if (!tour.gatewayProgram.isEmpty()) {
        arguments << QStringLiteral("--gateway-program") << tour.gatewayProgram;
    }
    return arguments + optionsFor(tour.appearance);
}

/// Takes the one play out of the report of the other process, and the report away.
QJsonObject takeReport(const QString& path) {
    QFile file(path);
    const QByteArray json = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    file.remove();
    return QJsonDocument::fromJson(json)[QStringLiteral("plays")][0].toObject();
}

/// Names the pictures as they are found from the folder of the tour.
void moveShots(QJsonObject& report, const QString& folder) {
    QJsonArray steps = report[QStringLiteral("steps")].toArray();
    for (auto&& step : steps) {
        QJsonObject told = step.toObject();
        if (told.contains(QStringLiteral("shot"))) {
            told[QStringLiteral("shot")] = folder + u'/' + told[QStringLiteral("shot")].toString();
            step = told;
        }
    }
    report[QStringLiteral("steps")] = steps;
}

} // namespace

QJsonObject runLanguagePlay(const QString& program, const PlayScript& play, const Options& tour) {
    const QString folder = tour.outFolder + u'/' + play.name;
    const QString reportFile = folder + QStringLiteral("/tour.json");
    QFile::remove(reportFile);
    QProcess host;
    host.setProcessChannelMode(QProcess::ForwardedChannels);
    host.start(program, argumentsFor(play, tour, folder));
    const bool met =
        host.waitForFinished(longest) && host.exitStatus() == QProcess::NormalExit && host.exitCode() == 0;
    QJsonObject report = takeReport(reportFile);
    if (!report.isEmpty()) {
        moveShots(report, play.name);
    }
    report[QStringLiteral("name")] = play.name;
    report[QStringLiteral("ok")] = met && report[QStringLiteral("ok")].toBool();
    return report;
}

} // namespace demo
