#pragma once

#include "Appearance.hpp"
#include "PhoneSize.hpp"

#include <QString>
#include <QStringList>

#include <expected>
#include <optional>

namespace demo {

/// The parsed command line.
struct Options {
    enum class Mode { window, tour, play, controls, gallery };

    Mode mode = Mode::window;
    /// Folder for the pictures and the report of a tour or a play, or for a gallery.
    QString outFolder;
    QString playFile;
    /// File for the sheet of controls.
    QString controlsFile;
    /// Whether the gallery is to be drawn in its quick form.
    bool quick = false;
    /// The language whose part of the gallery this process draws; empty for the one that starts the others.
    QString galleryLanguage;
    /// HOST:PORT of a server to use instead of the local gateway.
    std::optional<QString> gatewayHost;
    quint16 gatewayPort = 0;
    QString caFile;
    QString gatewayProgram;
    /// Folder of the local gateway's state.
    QString dataFolder;
    quint16 port = 0;
    bool reset = false;
    QString language;
    /// At the start, and at the start of each play.
    Appearance appearance;
    /// Of the phone-sized area, at the start and at the start of each play.
    QSize size = usualPhoneSize;
};

/// Reads the arguments. The error is one line for a person; an empty one means that help was asked for and
/// printed.
[[nodiscard]] std::expected<Options, QString> parseOptions(const QStringList& arguments);

} // namespace demo
