#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::fuzzing {

/// Something that takes bytes from outside. One object a target, which registers itself: so a program that
/// links one target fuzzes it, and a program that links all of them replays what was kept of each.
class Target {
public:
    /// Takes any bytes. Ends the process if something that is promised of them does not hold.
    using Function = void (*)(const std::string& input);

    Target(const char* itsName, Function function) : name(itsName), run(function) { all().push_back(this); }
    Target(const Target&) = delete;
    Target& operator=(const Target&) = delete;

    static std::vector<const Target*>& all() {
        static std::vector<const Target*> targets;
        return targets;
    }

    const std::string_view name;
    const Function run;
};

/// Ends the process, and so is a finding, unless `holds`.
inline void require(bool holds, const char* promise) {
    if (!holds) {
        std::fprintf(stderr, "This does not hold: %s\n", promise);
        std::abort();
    }
}

} // namespace quillet::fuzzing
