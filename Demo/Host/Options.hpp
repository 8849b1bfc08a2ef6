#pragma once

#include <QString>
#include <QStringList>

#include <expected>
#include <optional>

namespace demo {

/// What a person typed.
struct Options {
    enum class Mode { window, tour, play, controls };

    Mode mode = Mode::window;
    /// Where a tour or a play leaves its pictures and its report.
    QString outFolder;
    QString playFile;
    /// Where the sheet of controls goes.
    QString controlsFile;
    /// HOST:PORT of a server to use instead of the one that comes with the project.
    std::optional<QString> gatewayHost;
    quint16 gatewayPort = 0;
    QString caFile;
    QString gatewayProgram;
    /// Where the local gateway keeps its state.
    QString dataFolder;
    quint16 port = 0;
    bool reset = false;
    QString language;
    bool dark = false;
    bool reducedMotion = false;
};

/// Reads the arguments. The error is one line for a person; an empty one means that help was asked for and
/// printed.
[[nodiscard]] std::expected<Options, QString> parseOptions(const QStringList& arguments);

} // namespace demo
