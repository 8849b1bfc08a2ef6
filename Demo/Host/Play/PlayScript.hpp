#pragma once

#include "Appearance.hpp"
#include "HostApplication.hpp"
#include "Play/Hands.hpp"

#include <QMargins>
#include <QSize>
#include <QString>

#include <chrono>
#include <expected>
#include <variant>
#include <vector>

namespace demo {

namespace steps {

struct Open {
    HostApplication::Order order;
    bool operator==(const Open&) const = default;
};
/// A refusal with a back end code that no reply can produce, simulated.
struct Handmade {
    QString code;
    bool operator==(const Handmade&) const = default;
};
/// Only before the first screen of the process, since texts are looked up once.
struct Language {
    QString code;
    bool operator==(const Language&) const = default;
};
struct Close {
    bool operator==(const Close&) const = default;
};
/// By shown text, accessible name, or identifier.
struct Tap {
    QString name;
    Device by = Device::mouse;
    bool operator==(const Tap&) const = default;
};
struct Expect {
    QString text;
    std::chrono::milliseconds within;
    bool operator==(const Expect&) const = default;
};
struct Absent {
    QString text;
    std::chrono::milliseconds within;
    bool operator==(const Absent&) const = default;
};
struct Title {
    QString text;
    std::chrono::milliseconds within;
    bool operator==(const Title&) const = default;
};
struct Background {
    Device by = Device::mouse;
    bool operator==(const Background&) const = default;
};
/// By key it is Escape.
struct CloseIcon {
    Device by = Device::mouse;
    bool operator==(const CloseIcon&) const = default;
};
/// All the way.
struct Scroll {
    bool toEnd;
    bool operator==(const Scroll&) const = default;
};
struct Back {
    bool operator==(const Back&) const = default;
};
struct Shot {
    QString name;
    bool operator==(const Shot&) const = default;
};
struct Network {
    bool on;
    bool operator==(const Network&) const = default;
};
/// Of the phone-sized area.
struct Size {
    QSize size;
    bool operator==(const Size&) const = default;
};
struct Theme {
    kel::KelTheme theme;
    bool operator==(const Theme&) const = default;
};
struct TextScale {
    int percent;
    bool operator==(const TextScale&) const = default;
};
struct Motion {
    bool reduced;
    bool operator==(const Motion&) const = default;
};
struct Direction {
    Qt::LayoutDirection direction;
    bool operator==(const Direction&) const = default;
};
/// What a device takes of the edges of the phone-sized area.
struct Insets {
    QMargins margins;
    bool operator==(const Insets&) const = default;
};
/// Wherever the focus is.
struct Press {
    Qt::Key key;
    bool operator==(const Press&) const = default;
};
/// By shown text, accessible name, or identifier.
struct Focused {
    QString name;
    std::chrono::milliseconds within;
    bool operator==(const Focused&) const = default;
};

} // namespace steps

using Step =
    std::variant<steps::Open, steps::Handmade, steps::Language, steps::Close, steps::Tap, steps::Expect,
                 steps::Absent, steps::Title, steps::Background, steps::CloseIcon, steps::Scroll, steps::Back,
                 steps::Shot, steps::Network, steps::Size, steps::Theme, steps::TextScale, steps::Motion,
                 steps::Direction, steps::Insets, steps::Press, steps::Focused>;

/// A step and its source line.
struct PlayLine {
    QString text;
    Step step;
};

/// A play: its name and its steps, in order.
struct PlayScript {
    QString name;
    std::vector<PlayLine> lines;
    /// The file that it was read from.
    QString source;
    /// Whether one of its steps chooses the language.
    bool hasLanguage = false;
};

/// How long a step waits for its condition by default.
inline constexpr std::chrono::milliseconds patience{10'000};

/// Reads a play, one step a line; blank lines and lines that begin with "#" are ignored, and values with
/// blanks stand in double quotes, in which a backslash escapes the next character. The error is one line for
/// a person and names the line's number.
[[nodiscard]] std::expected<PlayScript, QString> parsePlay(const QString& name, const QString& text);

} // namespace demo
