#pragma once

#include <QProcess>

#include <cstdint>
#include <string>
#include <vector>

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

} // namespace quillet::gateway
