#include "Play/PlayScript.hpp"

#include "Language.hpp"
#include "PhoneSize.hpp"
#include "Play/Words.hpp"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <optional>

namespace demo {

namespace {

using Parsed = std::expected<Step, QString>;

constexpr int mostInset = 200;

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

/// A step that waits for a text.
template <typename WaitingStep>
Parsed parseWaiting(const Words& words) {
    const auto values = settings(words.mid(1), {QStringLiteral("within")});
    if (words.isEmpty() || !values) {
        return std::unexpected(QStringLiteral("this step takes a text, and within=SECONDS if wanted"));
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
    return WaitingStep{words.first(), within};
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
    const auto size = onlyWord(words).and_then(parsePhoneSize);
    return size ? Parsed(steps::Size{*size})
                : std::unexpected(QStringLiteral("size takes ") + phoneSizeRule());
}

Parsed parseTheme(const Words& words) {
    const auto theme = onlyWord(words).and_then(parseThemeName);
    return theme ? Parsed(steps::Theme{*theme})
                 : std::unexpected(QStringLiteral("theme takes ") + themeRule());
}

Parsed parseTextScale(const Words& words) {
    const auto percent = onlyWord(words).and_then(parseTextPercentage);
    return percent ? Parsed(steps::TextScale{*percent})
                   : std::unexpected(QStringLiteral("text-scale takes ") + textScaleRule());
}

Parsed parseMotion(const Words& words) {
    const auto motion = choice(words, {QStringLiteral("reduced"), QStringLiteral("full")});
    return motion ? Parsed(steps::Motion{*motion == QLatin1String("reduced")})
                  : std::unexpected(QStringLiteral("motion takes reduced or full"));
}

Parsed parseDirection(const Words& words) {
    const auto direction = choice(words, {QStringLiteral("ltr"), QStringLiteral("rtl")});
    return direction ? Parsed(steps::Direction{*direction == QLatin1String("rtl") ? Qt::RightToLeft
                                                                                  : Qt::LeftToRight})
                     : std::unexpected(QStringLiteral("direction takes ltr or rtl"));
}

Parsed parseInsets(const Words& words) {
    static const QRegularExpression form(
        QStringLiteral("\\A([0-9]{1,3}) ([0-9]{1,3}) ([0-9]{1,3}) ([0-9]{1,3})\\z"));
    const auto match = form.match(words.join(u' '));
    std::array<int, 4> edges{};
    for (int i = 0; i < 4; ++i) {
        edges[static_cast<std::size_t>(i)] = match.captured(i + 1).toInt();
    }
    if (!match.hasMatch() || std::ranges::max(edges) > mostInset) {
        return std::unexpected(
            QStringLiteral("insets takes top, right, bottom and left, each from 0 to %1").arg(mostInset));
    }
    const auto [top, right, bottom, left] = edges;
    return steps::Insets{QMargins(left, top, right, bottom)};
}

Parsed parsePress(const Words& words) {
    static const QHash<QString, Qt::Key> keys{
        {QStringLiteral("Tab"), Qt::Key_Tab},       {QStringLiteral("Backtab"), Qt::Key_Backtab},
        {QStringLiteral("Enter"), Qt::Key_Enter},   {QStringLiteral("Return"), Qt::Key_Return},
        {QStringLiteral("Space"), Qt::Key_Space},   {QStringLiteral("Escape"), Qt::Key_Escape},
        {QStringLiteral("Up"), Qt::Key_Up},         {QStringLiteral("Down"), Qt::Key_Down},
        {QStringLiteral("PageUp"), Qt::Key_PageUp}, {QStringLiteral("PageDown"), Qt::Key_PageDown},
        {QStringLiteral("Home"), Qt::Key_Home},     {QStringLiteral("End"), Qt::Key_End}};
    const auto name = choice(words, keys.keys());
    return name
               ? Parsed(steps::Press{keys[*name]})
               : std::unexpected(QStringLiteral("press takes Tab, Backtab, Enter, Return, Space, Escape, Up, "
                                                "Down, PageUp, PageDown, Home or End"));
}

Parsed parseStep(const QString& line) {
    static const QHash<QString, std::function<Parsed(const Words&)>> parsers{
        {QStringLiteral("open"), parseOpen},
        {QStringLiteral("handmade"), parseHandmade},
        {QStringLiteral("language"), parseLanguage},
        {QStringLiteral("close"), parseBare<steps::Close>},
        {QStringLiteral("tap"), parseTap},
        {QStringLiteral("expect"), parseWaiting<steps::Expect>},
        {QStringLiteral("absent"), parseWaiting<steps::Absent>},
        {QStringLiteral("title"), parseWaiting<steps::Title>},
        {QStringLiteral("background"), parseBackground},
        {QStringLiteral("close-icon"), parseCloseIcon},
        {QStringLiteral("scroll"), parseScroll},
        {QStringLiteral("back"), parseBare<steps::Back>},
        {QStringLiteral("shot"), parseShot},
        {QStringLiteral("network"), parseNetwork},
        {QStringLiteral("size"), parseSize},
        {QStringLiteral("theme"), parseTheme},
        {QStringLiteral("text-scale"), parseTextScale},
        {QStringLiteral("motion"), parseMotion},
        {QStringLiteral("direction"), parseDirection},
        {QStringLiteral("insets"), parseInsets},
        {QStringLiteral("press"), parsePress},
        {QStringLiteral("focused"), parseWaiting<steps::Focused>},
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
    PlayScript play;
    play.name = name;
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
        play.hasLanguage = play.hasLanguage || std::holds_alternative<steps::Language>(*step);
        play.lines.push_back({line, std::move(*step)});
    }
    if (play.lines.empty()) {
        return std::unexpected(QStringLiteral("%1 has no steps").arg(name));
    }
    return play;
}

} // namespace demo
