#include "Sandbox/GatewayProcess.hpp"

#include <QRegularExpression>

namespace demo {

namespace {

constexpr int startMilliseconds = 10'000;
constexpr int stopMilliseconds = 3'000;

QString firstLine(const QByteArray& output) {
    return QString::fromUtf8(output).trimmed().section(u'\n', 0, 0);
}

} // namespace

GatewayProcess::~GatewayProcess() {
    if (process_.state() != QProcess::NotRunning) {
        process_.closeWriteChannel();
        if (!process_.waitForFinished(stopMilliseconds)) {
            process_.kill();
            process_.waitForFinished(stopMilliseconds);
        }
    }
}

std::expected<GatewayAddress, QString> GatewayProcess::start(const Settings& settings) {
    QStringList arguments{QStringLiteral("--data"), settings.dataFolder, QStringLiteral("--port"),
                          QString::number(settings.port), QStringLiteral("--stop-with-stdin")};
    if (settings.reset) {
        arguments << QStringLiteral("--reset");
    }
    process_.start(settings.program, arguments);
    if (!process_.waitForStarted(startMilliseconds)) {
        return std::unexpected(QStringLiteral("cannot start the gateway: ") + process_.errorString());
    }
    static const QRegularExpression listening(QStringLiteral("listening on ([0-9.]+):([0-9]+)"));
    QByteArray said;
    while (process_.waitForReadyRead(startMilliseconds)) {
        said += process_.readAllStandardOutput();
        if (const auto match = listening.match(QString::fromUtf8(said)); match.hasMatch()) {
            return GatewayAddress{match.captured(1), match.captured(2).toUShort(),
                                  settings.dataFolder + QStringLiteral("/ca.pem")};
        }
    }
    process_.waitForFinished(stopMilliseconds);
    const QString complaint = firstLine(process_.readAllStandardError());
    return std::unexpected(complaint.isEmpty() ? QStringLiteral("the gateway does not answer") : complaint);
}

void GatewayProcess::whenEnded(const QObject& context, const std::function<void()>& tell) const {
    QObject::connect(&process_, &QProcess::finished, &context, tell);
}

QByteArray GatewayProcess::seededOrders(const Settings& settings) {
    QProcess list;
    list.start(settings.program, {QStringLiteral("--data"), settings.dataFolder, QStringLiteral("--list")});
    list.waitForFinished(startMilliseconds);
    return list.readAllStandardOutput();
}

} // namespace demo
