#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace demo::testing {

/// The sample host as a person starts it, and a folder for what it writes.
class HostProgram {
public:
    /// Runs the program to its end and returns its exit status, or -1 if it crashed.
    int run(const QStringList& arguments) {
        QProcess host;
        // Qt warns where this variable is unset, which it is not in a desktop session.
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_RUNTIME_DIR", runtime_.path());
        host.setProcessEnvironment(environment);
        host.start(QUILLET_HOST_PROGRAM, arguments);
        EXPECT_TRUE(host.waitForFinished(50'000));
        complaint = QString::fromUtf8(host.readAllStandardError());
        return host.exitStatus() == QProcess::NormalExit ? host.exitCode() : -1;
    }

    QTemporaryDir folder;
    /// What the program wrote to standard error.
    QString complaint;

private:
    QTemporaryDir runtime_;
};

} // namespace demo::testing
