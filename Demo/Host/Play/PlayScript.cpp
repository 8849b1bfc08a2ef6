#include "Play/PlayScript.hpp"

#include "Language.hpp"
#include "PhoneSize.hpp"

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

#include <cmath>
#include <functional>
#include <optional>

namespace demo {

namespace {

using Words = QStringList;
using Parsed = std::expected<Step, QString>;

/// Splits at blanks outside double quotes; nothing if a quote is not closed.
std::optional<Words> split(const QString& line) {
    Words words;
    QString word;
    bool quoted = false;
    bool started = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QChar c = line[i];
        if (c == u'"') {
            quoted = !quoted;
            started = true;
        } else if (quoted && c == u'\\' && i + 1 < line.size()) {
            word += line[++i];
        } else if (!quoted && c.isSpace()) {
            if (started) {
                words << word;
            }
            word.clear();
            started = false;
        } else {
            word += c;
            started = true;
        }
    }
    if (started) {
        words << word;
    }
    return quoted ? std::nullopt : std::optional(words);
}

/// The words "key=value" of a step; nothing if one is malformed, unknown or repeated.
std::optional<QHash<QString, QString>> settings(const Words& words, const QStringList& known) {
    QHash<QString, QString> values;
    for (const QString& word : words) {
        const QString key = word.section(u'=', 0, 0);
        if (!word.contains(u'=') || !known.contains(key) || values.contains(key)) {
            return std::nullopt;
        }
        values[key] = word.section(u'=', 1);
    }
    return values;
}

Parsed parseOpen(const Words& words) {
    const auto values =
        settings(words, {QStringLiteral("cart"), QStringLiteral("consultant"), QStringLiteral("country"),
                         QStringLiteral("token"), QStringLiteral("provider"), QStringLiteral("environment")});
    if (!values || !values->contains(QStringLiteral("cart")) ||
        !values->contains(QStringLiteral("consultant")) || !values->contains(QStringLiteral("country"))) {
        return std::unexpected(
            QStringLiteral("open takes cart=UUID consultant=N country=CC, and token=, provider= "
                           "and environment= if wanted"));
    }
    bool ok = false;
    steps::Open open;
    open.order.cart = {values->value(QStringLiteral("cart")).toStdString(),
                       values->value(QStringLiteral("consultant")).toULongLong(&ok),
                       values->value(QStringLiteral("country")).toStdString()};
    if (!ok) {
        return std::unexpected(QStringLiteral("not a consultant's number: ") +
                               values->value(QStringLiteral("consultant")));
    }
    open.order.accessToken =
        values->value(QStringLiteral("token"), QStringLiteral("sample-access-token")).toStdString();
    open.order.authorizationProvider =
        values->value(QStringLiteral("provider"), QStringLiteral("sample-idp")).toStdString();
    static const QHash<QString, quillet::Environment> environments{
        {QStringLiteral("dev"), quillet::Environment::dev},
        {QStringLiteral("hml"), quillet::Environment::hml},
        {QStringLiteral("prd"), quillet::Environment::prd}};
    const QString environment = values->value(QStringLiteral("environment"), QStringLiteral("dev"));
    if (!environments.contains(environment)) {
        return std::unexpected(QStringLiteral("environment is dev, hml or prd, not ") + environment);
    }
    open.order.environment = environments[environment];
    return open;
}

Parsed parseExpect(const Words& words) {
    const auto values = settings(words.mid(1), {QStringLiteral("within")});
    if (words.isEmpty() || !values) {
        return std::unexpected(QStringLiteral("expect takes a text, and within=SECONDS if wanted"));
    }
    auto within = patience;
    if (values->contains(QStringLiteral("within"))) {
        bool ok = false;
        const double seconds = values->value(QStringLiteral("within")).toDouble(&ok);
        if (!ok || !(seconds >= 0 && seconds <= 3600)) {
            return std::unexpected(QStringLiteral("within takes seconds, from 0 to 3600"));
        }
        within = std::chrono::milliseconds(std::llround(seconds * 1000));
    }
    return steps::Expect{words.first(), within};
}

template <typename TextStep>
Parsed parseText(const Words& words) {
    return words.size() == 1 ? Parsed(TextStep{words.first()})
                             : std::unexpected(QStringLiteral("this step takes one text"));
}

/// The device in "by=DEVICE", the mouse by default; nothing if the device is unknown.
std::optional<Device> parseDevice(const Words& words, const QHash<QString, Device>& others) {
    if (words.isEmpty()) {
        return Device::mouse;
    }
    const auto values = settings(words, {QStringLiteral("by")});
    const auto device = others.constFind(values ? values->value(QStringLiteral("by")) : QString());
    return device == others.constEnd() ? std::nullopt : std::optional(*device);
}

const QHash<QString, Device>& touchOrKey() {
    static const QHash<QString, Device> devices{{QStringLiteral("touch"), Device::touch},
                                                {QStringLiteral("key"), Device::key}};
    return devices;
}

Parsed parseTap(const Words& words) {
    const auto by = parseDevice(words.mid(1), touchOrKey());
    return !words.isEmpty() && by
               ? Parsed(steps::Tap{words.first(), *by})
               : std::unexpected(QStringLiteral("tap takes one text, and by=touch or by=key if wanted"));
}

Parsed parseBackground(const Words& words) {
    const auto by = parseDevice(words, {{QStringLiteral("touch"), Device::touch}});
    return by ? Parsed(steps::Background{*by})
              : std::unexpected(QStringLiteral("background takes nothing but by=touch"));
}

Parsed parseCloseIcon(const Words& words) {
    const auto by = parseDevice(words, touchOrKey());
    return by ? Parsed(steps::CloseIcon{*by})
              : std::unexpected(QStringLiteral("close-icon takes nothing but by=touch or by=key"));
}

template <typename BareStep>
Parsed parseBare(const Words& words) {
    return words.isEmpty() ? Parsed(BareStep{}) : std::unexpected(QStringLiteral("this step takes nothing"));
}

Parsed parseShot(const Words& words) {
    static const QRegularExpression plainName(QStringLiteral("^[A-Za-z0-9][A-Za-z0-9._-]*$"));
    return words.size() == 1 && plainName.match(words.first()).hasMatch()
               ? Parsed(steps::Shot{words.first()})
               : std::unexpected(QStringLiteral("shot takes a name of letters, digits, points and dashes"));
}

/// One word of a fixed set.
std::optional<QString> choice(const Words& words, const QStringList& known) {
    return words.size() == 1 && known.contains(words.first()) ? std::optional(words.first()) : std::nullopt;
}

Parsed parseHandmade(const Words& words) {
    const auto code = choice(words, {QStringLiteral("ERROR_CART_OTHER_CONSULTANT"),
                                     QStringLiteral("ERROR_CART_ALREADY_SUBMITTED")});
    return code ? Parsed(steps::Handmade{*code})
                : std::unexpected(QStringLiteral("handmade takes ERROR_CART_OTHER_CONSULTANT or "
                                                 "ERROR_CART_ALREADY_SUBMITTED"));
}

Parsed parseLanguage(const Words& words) {
    return words.size() == 1 && isLanguage(words.first())
               ? Parsed(steps::Language{words.first()})
               : std::unexpected(QStringLiteral("language takes ") + languageRule());
}

Parsed parseNetwork(const Words& words) {
    const auto state = choice(words, {QStringLiteral("on"), QStringLiteral("off")});
    return state ? Parsed(steps::Network{*state == QLatin1String("on")})
                 : std::unexpected(QStringLiteral("network takes on or off"));
}

Parsed parseScroll(const Words& words) {
    const auto edge = choice(words, {QStringLiteral("end"), QStringLiteral("start")});
    return edge ? Parsed(steps::Scroll{*edge == QLatin1String("end")})
                : std::unexpected(QStringLiteral("scroll takes end or start"));
}

Parsed parseSize(const Words& words) {
    const auto size = words.size() == 1 ? parsePhoneSize(words.first()) : std::nullopt;
    return size ? Parsed(steps::Size{*size})
                : std::unexpected(QStringLiteral("size takes ") + phoneSizeRule());
}

Parsed parseStep(const QString& line) {
    static const QHash<QString, std::function<Parsed(const Words&)>> parsers{
        {QStringLiteral("open"), parseOpen},
        {QStringLiteral("handmade"), parseHandmade},
        {QStringLiteral("language"), parseLanguage},
        {QStringLiteral("close"), parseBare<steps::Close>},
        {QStringLiteral("tap"), parseTap},
        {QStringLiteral("expect"), parseExpect},
        {QStringLiteral("absent"), parseText<steps::Absent>},
        {QStringLiteral("title"), parseText<steps::Title>},
        {QStringLiteral("background"), parseBackground},
        {QStringLiteral("close-icon"), parseCloseIcon},
        {QStringLiteral("scroll"), parseScroll},
        {QStringLiteral("back"), parseBare<steps::Back>},
        {QStringLiteral("shot"), parseShot},
        {QStringLiteral("network"), parseNetwork},
        {QStringLiteral("size"), parseSize},
    };
    const auto words = split(line);
    if (!words) {
        return std::unexpected(QStringLiteral("a quotation mark is left open"));
    }
    const auto parser = parsers.constFind(words->value(0));
    return parser == parsers.constEnd()
               ? std::unexpected(QStringLiteral("unknown step \"%1\"").arg(words->value(0)))
               : (*parser)(words->mid(1));
}

} // namespace

std::expected<PlayScript, QString> parsePlay(const QString& name, const QString& text) {
    PlayScript play{name, {}};
    const QStringList lines = text.split(u'\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString line = lines[i].trimmed();
        if (line.isEmpty() || line.startsWith(u'#')) {
            continue;
        }
        auto step = parseStep(line);
        if (!step) {
            return std::unexpected(QStringLiteral("%1, line %2: %3").arg(name).arg(i + 1).arg(step.error()));
        }
        play.lines.push_back({line, std::move(*step)});
    }
    if (play.lines.empty()) {
        return std::unexpected(QStringLiteral("%1 has no steps").arg(name));
    }
    return play;
}

} // namespace demo
