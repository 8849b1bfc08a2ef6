#pragma once

#include "Gateway/Json.hpp"
#include "Gateway/Requests.hpp"

#include <QProcess>
#include <QRegularExpression>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QTemporaryDir>
#include <QtTest/qtestsystem.h>

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

/// What came of a request: of an answer that is cut, as much of it as there was.
struct Exchange {
    int status = 0;
    std::string body;
    bool isTimedOut = false;
};

/// Whether there is as much of the body as the answer says.
inline bool isWhole(const QByteArray& answer) {
    static const QRegularExpression length(QStringLiteral("Content-Length: (\\d+)"));
    const auto head = answer.indexOf("\r\n\r\n");
    return head >= 0 && answer.size() - head - 4 >= length.match(answer).captured(1).toInt();
}

/// Sends over HTTPS to a port of 127.0.0.1, each time over a connection of its own, and trusts one authority.
struct HttpsClient {
    /// Waits for the first answer, for so many milliseconds each time that more of it is due.
    [[nodiscard]] Exchange send(const Request& request, int deadline = 20'000, int times = 1) const {
        QSslSocket socket;
        auto trusting = socket.sslConfiguration();
        trusting.setCaCertificates(QSslCertificate::fromPath(QString::fromStdString(authority)));
        socket.setSslConfiguration(trusting);
        socket.connectToHostEncrypted(QStringLiteral("127.0.0.1"), port);
        auto bytes = request.method + ' ' + request.target + " HTTP/1.1\r\n";
        for (const auto& [name, value] : request.headers) {
            bytes.append(name).append(": ").append(value).append("\r\n");
        }
        bytes += "Content-Length: " + std::to_string(request.body.size()) + "\r\n\r\n" + request.body;
        socket.write(QByteArray::fromStdString(bytes).repeated(times));
        QByteArray answer;
        while (!isWhole(answer) && socket.waitForReadyRead(deadline)) {
            answer += socket.readAll();
        }
        return {answer.mid(9, 3).toInt(), answer.mid(answer.indexOf("\r\n\r\n") + 4).toStdString(),
                socket.error() == QAbstractSocket::SocketTimeoutError};
    }

    /// What the answer tells.
    [[nodiscard]] std::string ask(const Request& request) const {
        const auto exchange = send(request);
        return told(exchange.status, exchange.body);
    }

    std::uint16_t port;
    std::filesystem::path authority;
};

/// A gateway that serves from a folder of its own, and a client that trusts it.
struct RunningGateway : ::testing::Test {
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
    const HttpsClient client{port, folder / "ca.pem"};
};

} // namespace quillet::gateway
