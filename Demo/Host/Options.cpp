#include "Options.hpp"

#include "Language.hpp"

#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace demo {

namespace {

std::optional<quint16> portNumber(const QString& text) {
    bool ok = false;
    const uint port = text.toUInt(&ok);
    return ok && port >= 1 && port <= 65535 ? std::optional(static_cast<quint16>(port)) : std::nullopt;
}

/// HOST:PORT, where HOST may be an IPv6 address in brackets.
bool readGateway(const QString& text, Options& options) {
    const auto colon = text.lastIndexOf(u':');
    const auto port = colon > 0 ? portNumber(text.mid(colon + 1)) : std::nullopt;
    QString host = text.left(colon);
    if (host.startsWith(u'[') && host.endsWith(u']')) {
        host = host.mid(1, host.size() - 2);
    }
    if (!port || host.isEmpty()) {
        return false;
    }
    options.gatewayHost = host;
    options.gatewayPort = *port;
    return true;
}

/// Why a file of certificate authorities cannot be used; empty if it can.
QString caFileFault(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("cannot read the CA file ") + path;
    }
    return file.readAll().contains("-----BEGIN CERTIFICATE-----")
               ? QString()
               : QStringLiteral("no certificate in the CA file ") + path;
}

} // namespace

std::expected<Options, QString> parseOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("The sample host: opens customers' orders in the module, in a window or as a play."));
    const QCommandLineOption help(QStringLiteral("help"), QStringLiteral("Show this help."));
    const QCommandLineOption tour(QStringLiteral("tour"),
                                  QStringLiteral("Play every outcome without a display."),
                                  QStringLiteral("DIR"));
    const QCommandLineOption play(QStringLiteral("play"), QStringLiteral("Play one file of steps."),
                                  QStringLiteral("FILE"));
    const QCommandLineOption out(QStringLiteral("out"), QStringLiteral("Where the play leaves its pictures."),
                                 QStringLiteral("DIR"));
    const QCommandLineOption controls(
        QStringLiteral("controls"), QStringLiteral("Draw the design system on one sheet, without a display."),
        QStringLiteral("FILE"));
    const QCommandLineOption gallery(
        QStringLiteral("gallery"),
        QStringLiteral("Draw every screen in every theme, language, text size and size, without a display."),
        QStringLiteral("DIR"));
    const QCommandLineOption quick(QStringLiteral("quick"),
                                   QStringLiteral("Draw a small part of the gallery only."));
    QCommandLineOption galleryLanguage(QStringLiteral("gallery-language"), QString(), QStringLiteral("CODE"));
    // For the processes that a gallery is drawn by.
    galleryLanguage.setFlags(QCommandLineOption::HiddenFromHelp);
    const QCommandLineOption gateway(QStringLiteral("gateway"),
                                     QStringLiteral("Play against this server instead of the project's own."),
                                     QStringLiteral("HOST:PORT"));
    const QCommandLineOption ca(QStringLiteral("ca"),
                                QStringLiteral("The authorities that server is trusted by."),
                                QStringLiteral("FILE"));
    const QCommandLineOption port(QStringLiteral("port"), QStringLiteral("Port of the local gateway."),
                                  QStringLiteral("N"));
    const QCommandLineOption reset(QStringLiteral("reset"), QStringLiteral("Seed the local gateway afresh."));
    const QCommandLineOption data(QStringLiteral("data"),
                                  QStringLiteral("Where the local gateway keeps its state."),
                                  QStringLiteral("DIR"));
    const QCommandLineOption program(QStringLiteral("gateway-program"),
                                     QStringLiteral("The gateway to start."), QStringLiteral("FILE"));
    const QCommandLineOption language(QStringLiteral("language"), languageRule() + QStringLiteral(" (es)."),
                                      QStringLiteral("CODE"), QStringLiteral("es"));
    const QCommandLineOption theme(QStringLiteral("theme"), themeRule() + QStringLiteral(" (light)."),
                                   QStringLiteral("NAME"));
    const QCommandLineOption dark(QStringLiteral("dark"), QStringLiteral("Short for --theme dark."));
    const QCommandLineOption textScale(QStringLiteral("text-scale"),
                                       QStringLiteral("Size of all texts: ") + textScaleRule(),
                                       QStringLiteral("N"));
    const QCommandLineOption rtl(QStringLiteral("rtl"),
                                 QStringLiteral("Lay everything out from right to left."));
    const QCommandLineOption reducedMotion(QStringLiteral("reduced-motion"),
                                           QStringLiteral("Let nothing move but fade."));
    const QCommandLineOption size(QStringLiteral("size"),
                                  QStringLiteral("Size of the phone-sized area: ") + phoneSizeRule(),
                                  QStringLiteral("WxH"));
    parser.addOptions({help,    tour,      play, out,           controls, gallery, quick,    galleryLanguage,
                       gateway, ca,        port, reset,         data,     program, language, theme,
                       dark,    textScale, rtl,  reducedMotion, size});

    if (!parser.parse(arguments)) {
        return std::unexpected(parser.errorText());
    }
    if (parser.isSet(help)) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        return std::unexpected(QString());
    }
    if (!parser.positionalArguments().isEmpty()) {
        return std::unexpected(QStringLiteral("not understood: ") + parser.positionalArguments().first());
    }

    Options options;
    options.dataFolder = parser.value(data);
    options.gatewayProgram = parser.value(program);
    options.reset = parser.isSet(reset);
    options.language = parser.value(language);
    options.appearance.reducedMotion = parser.isSet(reducedMotion);
    if (parser.isSet(rtl) || runsFromRightToLeft(options.language)) {
        options.appearance.direction = Qt::RightToLeft;
    }
    if (parser.isSet(dark) && parser.isSet(theme)) {
        return std::unexpected(QStringLiteral("--dark and --theme do not go together"));
    }
    if (parser.isSet(dark) || parser.isSet(theme)) {
        const QString name = parser.isSet(dark) ? QStringLiteral("dark") : parser.value(theme);
        const auto chosen = parseThemeName(name);
        if (!chosen) {
            return std::unexpected(QStringLiteral("--theme is %1, not %2").arg(themeRule(), name));
        }
        options.appearance.theme = *chosen;
    }
    if (parser.isSet(textScale)) {
        const auto percent = parseTextPercentage(parser.value(textScale));
        if (!percent) {
            return std::unexpected(
                QStringLiteral("--text-scale is %1, not %2").arg(textScaleRule(), parser.value(textScale)));
        }
        options.appearance.textScale = *percent;
    }
    if (!isLanguage(options.language)) {
        return std::unexpected(
            QStringLiteral("--language is %1, not %2").arg(languageRule(), options.language));
    }
    if (parser.isSet(tour) + parser.isSet(play) + parser.isSet(controls) + parser.isSet(gallery) > 1) {
        return std::unexpected(QStringLiteral("--tour, --play, --controls and --gallery do not go together"));
    }
    if ((parser.isSet(quick) || parser.isSet(galleryLanguage)) && !parser.isSet(gallery)) {
        return std::unexpected(QStringLiteral("--quick goes with --gallery"));
    }
    for (const QCommandLineOption* one : {&language, &dark, &size}) {
        if (parser.isSet(gallery) && parser.isSet(*one)) {
            return std::unexpected(
                QStringLiteral("--%1 does not go with --gallery").arg(one->names().constFirst()));
        }
    }
    for (const QCommandLineOption& option : {size, textScale, rtl}) {
        if (parser.isSet(option) && parser.isSet(controls)) {
            return std::unexpected(
                QStringLiteral("--%1 does not go with --controls").arg(option.names().constFirst()));
        }
    }
    if (parser.isSet(port)) {
        const auto number = portNumber(parser.value(port));
        if (!number) {
            return std::unexpected(QStringLiteral("not a port: ") + parser.value(port));
        }
        options.port = *number;
    }
    if (parser.isSet(size)) {
        const auto measured = parsePhoneSize(parser.value(size));
        if (!measured) {
            return std::unexpected(
                QStringLiteral("--size is %1, not %2").arg(phoneSizeRule(), parser.value(size)));
        }
        options.size = *measured;
    }
    if (parser.isSet(tour)) {
        options.mode = Options::Mode::tour;
        options.outFolder = parser.value(tour);
    }
    if (parser.isSet(play)) {
        options.mode = Options::Mode::play;
        options.playFile = parser.value(play);
        options.outFolder = parser.value(out);
    }
    if (parser.isSet(controls)) {
        options.mode = Options::Mode::controls;
        options.controlsFile = parser.value(controls);
    }
    if (parser.isSet(gallery)) {
        options.mode = Options::Mode::gallery;
        options.outFolder = parser.value(gallery);
        options.quick = parser.isSet(quick);
        options.galleryLanguage = parser.value(galleryLanguage);
    }
    if (options.mode == Options::Mode::gallery && options.outFolder.isEmpty()) {
        return std::unexpected(QStringLiteral("--gallery needs a folder"));
    }
    if (options.mode == Options::Mode::play && options.outFolder.isEmpty()) {
        return std::unexpected(QStringLiteral("--play needs --out DIR"));
    }
    if (options.mode == Options::Mode::tour && options.outFolder.isEmpty()) {
        return std::unexpected(QStringLiteral("--tour needs a folder"));
    }
    if (options.mode == Options::Mode::controls && options.controlsFile.isEmpty()) {
        return std::unexpected(QStringLiteral("--controls needs a file"));
    }
    if (parser.isSet(out) && !parser.isSet(play)) {
        return std::unexpected(QStringLiteral("--out goes with --play"));
    }
    if (parser.isSet(gateway) != parser.isSet(ca) || (parser.isSet(gateway) && !parser.isSet(play))) {
        return std::unexpected(QStringLiteral("--gateway and --ca go together, and with --play"));
    }
    if (parser.isSet(gateway)) {
        if (!readGateway(parser.value(gateway), options)) {
            return std::unexpected(QStringLiteral("--gateway is HOST:PORT, not ") + parser.value(gateway));
        }
        options.caFile = parser.value(ca);
        if (const QString fault = caFileFault(options.caFile); !fault.isEmpty()) {
            return std::unexpected(fault);
        }
    }
    return options;
}

} // namespace demo
