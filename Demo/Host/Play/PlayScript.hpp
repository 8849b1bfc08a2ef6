#pragma once

#include "HostApplication.hpp"
#include "Play/Hands.hpp"

#include <QString>

#include <chrono>
#include <expected>
#include <variant>
#include <vector>

namespace demo {

namespace steps {

struct Open {
    HostApplication::Order order;
};
/// A refusal with one of the back end's codes that no reply can produce, made by hand.
struct Handmade {
    QString code;
};
/// Before the first screen of the process: texts that were looked up keep their language.
struct Language {
    QString code;
};
struct Close {};
/// By shown text, accessible name, or identifier.
struct Tap {
    QString name;
    Device by = Device::mouse;
};
struct Expect {
    QString text;
    std::chrono::milliseconds within;
};
struct Absent {
    QString text;
};
struct Title {
    QString text;
};
struct Background {
    Device by = Device::mouse;
};
/// By key it is Escape.
struct CloseIcon {
    Device by = Device::mouse;
};
/// All the way.
struct Scroll {
    bool toEnd;
};
struct Back {};
struct Shot {
    QString name;
};
struct Network {
    bool on;
};

} // namespace steps

using Step = std::variant<steps::Open, steps::Handmade, steps::Language, steps::Close, steps::Tap,
                          steps::Expect, steps::Absent, steps::Title, steps::Background, steps::CloseIcon,
                          steps::Scroll, steps::Back, steps::Shot, steps::Network>;

/// A step, and the line that it was written as.
struct PlayLine {
    QString text;
    Step step;
};

/// A play: its name and its steps, in order.
struct PlayScript {
    QString name;
    std::vector<PlayLine> lines;
};

/// How long a step waits for what it needs, unless it says otherwise.
inline constexpr std::chrono::milliseconds patience{10'000};

/// Reads a play, one step a line; blank lines and lines that begin with "#" say nothing, and values with
/// blanks stand in double quotes, in which a backslash takes the next character as it is. The error is one
/// line for a person and names the line's number.
[[nodiscard]] std::expected<PlayScript, QString> parsePlay(const QString& name, const QString& text);

} // namespace demo
