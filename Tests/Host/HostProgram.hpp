#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace demo::testing {

/// The sample host as a person starts it, and a folder for what it writes.
struct HostProgram {
    // Qt warns where this variable is unset, which it is not in a desktop session.
    HostProgram() { environment.insert("XDG_RUNTIME_DIR", runtime.path()); }

    /// Runs the program to its end and returns its exit status, or -1 if it crashed.
    int run(const QStringList& arguments) {
        QProcess host;
        host.setProcessEnvironment(environment);
        host.start(QUILLET_HOST_PROGRAM, arguments);
        EXPECT_TRUE(host.waitForFinished(50'000));
        complaint = QString::fromUtf8(host.readAllStandardError());
        return host.exitStatus() == QProcess::NormalExit ? host.exitCode() : -1;
    }

    const QTemporaryDir folder;
    const QTemporaryDir runtime;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    /// What the program wrote to standard error.
    QString complaint;
};

} // namespace demo::testing
