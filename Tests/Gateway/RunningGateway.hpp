#pragma once

#include "Gateway/Json.hpp"
#include "Gateway/Requests.hpp"

#include <QProcess>
#include <QRegularExpression>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QTemporaryDir>
#include <QtTest/qtestsystem.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace quillet::gateway {

/// The program as a child process, whose standard input has ended. The destructor kills it if it still runs.
struct GatewayProcess : QProcess {
    /// `launcher` is a command that is followed by the program and its arguments.
    explicit GatewayProcess(const std::vector<std::string>& arguments, QStringList launcher = {}) {
        launcher << QUILLET_GATEWAY_PROGRAM;
        for (const auto& argument : arguments) {
            launcher << QString::fromStdString(argument);
        }
        setStandardInputFile(nullDevice());
        start(launcher.takeFirst(), launcher);
    }
    ~GatewayProcess() override { end(SIGKILL); }

    /// Waits for the line with the port; 0 if the program ended without one.
    std::uint16_t port() {
        while (!canReadLine() && waitForReadyRead()) {
        }
        return readLine().trimmed().split(':').last().toUShort();
    }

    /// Sends a signal, if there is one, and waits for the end. Death by a signal is the status -1.
    int end(int signal = 0) {
        if (state() != NotRunning) {
            ::kill(static_cast<pid_t>(processId()), signal);
        }
        waitForFinished();
        return exitStatus() == NormalExit ? exitCode() : -1;
    }
};

/// An answer, and how it ended if not as it should: "cut", "closed" before it began, or "silent".
struct Exchange {
    int status = 0;
    std::string body;
    std::string failure;
};

/// Sends requests over HTTPS to a port of 127.0.0.1, and trusts one authority. Consecutive requests share a
/// connection if the server keeps it open.
class HttpsClient : public QSslSocket {
public:
    HttpsClient(std::uint16_t port, const std::filesystem::path& authority) : port_(port) {
        QSslConfiguration trusting = sslConfiguration();
        trusting.setCaCertificates(QSslCertificate::fromPath(QString::fromStdString(authority)));
        setSslConfiguration(trusting);
    }

    /// Connects, up to the end of the TLS handshake, and says nothing.
    bool connectSilently(int milliseconds = 20'000) {
        connectToHostEncrypted(QStringLiteral("127.0.0.1"), port_);
        return waitForEncrypted(milliseconds);
    }

    Exchange send(const Request& request, std::chrono::milliseconds deadline = std::chrono::seconds(20)) {
        const auto milliseconds = static_cast<int>(deadline.count());
        if (!isEncrypted()) {
            connectSilently(milliseconds);
        }
        auto bytes = request.method + ' ' + request.target + " HTTP/1.1\r\n";
        for (const auto& [name, value] : request.headers) {
            bytes.append(name).append(": ").append(value).append("\r\n");
        }
        bytes += "Content-Length: " + std::to_string(request.body.size()) + "\r\n\r\n" + request.body;
        write(QByteArray::fromStdString(bytes));
        QByteArray answer;
        qsizetype body = 0;
        const auto isWhole = [&] {
            static const QRegularExpression length(QStringLiteral("Content-Length: (\\d+)"));
            body = answer.indexOf("\r\n\r\n") + 4;
            return body >= 4 && answer.size() - body >= length.match(answer).captured(1).toInt();
        };
        while (!isWhole() && waitForReadyRead(milliseconds)) {
            answer += readAll();
        }
        Exchange exchange{answer.mid(9, 3).toInt(), answer.mid(body).toStdString(), {}};
        if (!isWhole()) {
            exchange.failure = error() == SocketTimeoutError ? "silent" : answer.isEmpty() ? "closed" : "cut";
        }
        if (!isWhole() || answer.contains("Connection: close")) {
            abort();
        }
        return exchange;
    }

    /// What the answer tells.
    std::string ask(const Request& request) {
        const auto exchange = send(request);
        return told(exchange.status, exchange.body);
    }

private:
    std::uint16_t port_;
};

/// A gateway that serves from a folder of its own, and a client that trusts it.
struct RunningGateway : ::testing::Test {
    [[nodiscard]] HttpsClient newClient() const { return {port, folder / "ca.pem"}; }

    /// Runs an errand on the folder.
    void adjust(std::vector<std::string> options) const {
        options.insert(options.end(), {"--data", folder});
        ASSERT_EQ(GatewayProcess(options).end(), 0);
    }

    /// The lines of the folder's log, each of which must be whole, once there are as many. A client may be
    /// gone before its request is read.
    [[nodiscard]] static std::vector<Json> readLog(const std::filesystem::path& folder,
                                                   std::size_t count = 0) {
        std::vector<Json> lines;
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                lines.clear();
                std::ifstream stream(folder / "gateway.log");
                for (std::string line; std::getline(stream, line);) {
                    lines.push_back(Json::parse(line));
                }
                return lines.size() >= count;
            },
            30'000));
        return lines;
    }

    const QTemporaryDir temporary;
    const std::filesystem::path folder = temporary.path().toStdString();
    GatewayProcess gateway{{"--data", folder}};
    const std::uint16_t port = gateway.port();
    HttpsClient client = newClient();
};

} // namespace quillet::gateway
