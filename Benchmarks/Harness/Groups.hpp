#pragma once

#include "Harness/Options.hpp"
#include "Harness/Row.hpp"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::benchmarks {

/// Rows that are measured together. Each group runs in a process of its own, so that none finds the heap, the
/// caches or the threads that another left behind.
struct Group {
    std::string_view name;
    /// What its rows are about, for `--help`.
    std::string_view about;
    /// Whether the process's threads all stay on one core.
    bool onOneCore = true;
    std::vector<Row> (*run)(const Options&) = nullptr;
};

/// How a cost grows with a size, for a plot. It too runs in a process of its own.
struct Curve {
    std::string_view name;
    bool onOneCore = true;
    /// One line a size, tabs between the figures; the first line names them.
    std::string (*run)(const Options&) = nullptr;
};

/// Runs what the arguments ask for, each group or curve in a process of its own. Rows are printed as a table,
/// curves written to files. The exit status is 0 also where a goal is not met, and 1 where something could
/// not be measured.
[[nodiscard]] int runGroups(std::span<const Group> groups, std::span<const Curve> curves, int argumentCount,
                            char** arguments);

} // namespace quillet::benchmarks
