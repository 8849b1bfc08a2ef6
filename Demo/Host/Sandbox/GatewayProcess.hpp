#pragma once

#include <QProcess>
#include <QString>

#include <expected>
#include <functional>

namespace demo {

/// The address of a gateway and the certificate authority that signed its certificate.
struct GatewayAddress {
    QString host = QStringLiteral("127.0.0.1");
    quint16 port = 0;
    QString caFile;
};

/// The local gateway as a child process. It ends with this object, and also if the host crashes.
class GatewayProcess final {
public:
    ~GatewayProcess();

    struct Settings {
        QString program;
        QString dataFolder;
        quint16 port = 0;
        bool reset = false;
    };
    /// Starts the gateway and waits, ten seconds at the most, until it listens. The error is one line for a
    /// person.
    [[nodiscard]] std::expected<GatewayAddress, QString> start(const Settings& settings);
    /// Calls `tell` when a running gateway ends unexpectedly, while `context` exists.
    void whenEnded(const QObject& context, const std::function<void()>& tell) const;

    /// The customers' orders in the gateway's seeds, as its `--list` prints them.
    [[nodiscard]] static QByteArray seededOrders(const Settings& settings);

private:
    QProcess process_;
};

} // namespace demo
