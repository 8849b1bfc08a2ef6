#include "Fuzzing/Target.hpp"
#include "Play/PlayScript.hpp"

namespace quillet::fuzzing {

static const Target target("play", [](const std::string& text) {
    const auto play = demo::parsePlay(QStringLiteral("p"), QString::fromStdString(text));
    if (!play) {
        require(play.error() == QStringLiteral("p has no steps") ||
                    play.error().startsWith(QStringLiteral("p, line ")),
                "a complaint names the play and the line");
        return;
    }
    require(!play->lines.empty(), "a play has steps");
    for (const auto& line : play->lines) {
        const auto again = demo::parsePlay(QStringLiteral("p"), line.text);
        require(again && again->lines.size() == 1 && again->lines[0].step == line.step,
                "a step's own line reads as that step");
    }
});

} // namespace quillet::fuzzing
