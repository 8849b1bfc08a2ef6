#pragma once

#include <QFile>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace demo::testing {

/// The sample host as a person starts it, and a folder for what it writes.
struct HostProgram : ::testing::Test {
    /// Runs the program to its end and returns its exit status, or -1 if it crashed.
    int run(const QStringList& arguments) {
        QProcess host;
        // Qt warns where this variable is unset, which it is not in a desktop session.
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_RUNTIME_DIR", runtime.path());
        host.setProcessEnvironment(environment);
        host.start(QUILLET_HOST_PROGRAM, arguments);
        EXPECT_TRUE(host.waitForFinished(50'000));
        complaint = QString::fromUtf8(host.readAllStandardError()).toStdString();
        return host.exitStatus() == QProcess::NormalExit ? host.exitCode() : -1;
    }
    /// Writes a play with these steps.
    QString write(const QByteArray& steps) {
        QFile file(folder.filePath("p.play"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(steps);
        return file.fileName();
    }

    const QTemporaryDir folder;
    const QTemporaryDir runtime;
    /// What the program wrote to standard error.
    std::string complaint;
};

} // namespace demo::testing
