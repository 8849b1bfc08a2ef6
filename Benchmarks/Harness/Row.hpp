#pragma once

#include "Harness/Rounds.hpp"

#include <optional>
#include <string>
#include <vector>

namespace quillet::benchmarks {

/// A goal for a figure. It is met by the figure itself too.
struct Goal {
    enum class Kind { atMost, atLeast };
    Kind kind = Kind::atMost;
    double bound = 0;

    [[nodiscard]] bool metBy(double figure) const {
        return kind == Kind::atMost ? figure <= bound : figure >= bound;
    }
};
[[nodiscard]] inline Goal atMost(double bound) {
    return {Goal::Kind::atMost, bound};
}
[[nodiscard]] inline Goal atLeast(double bound) {
    return {Goal::Kind::atLeast, bound};
}

/// One line of the table: what was measured, beside its yardstick from the same run.
struct Row {
    /// Begins with the row's two-digit number in the table of Docs/Performance.md; rows sort by it.
    std::string name;
    /// Of value and yardstick.
    std::string unit;
    double value = 0;
    /// Nothing where the goal is a plain figure; value and goal then have the same unit.
    std::optional<double> yardstick;
    /// What the goal is about: value by yardstick, or how often value goes into yardstick for an `atLeast`.
    std::optional<double> ratio;
    Goal goal;
    bool met = false;
    /// More figures that explain the row, such as the ratio of the minima.
    std::string remark;
};

/// Compares times that were measured in turns. For an `atMost` the ratio is ours to theirs, for an `atLeast`
/// theirs to ours ("8 times faster"). Both the ratio of the medians and that of the minima have to meet the
/// goal.
[[nodiscard]] Row ratioRow(std::string name, std::string unit, const Rounds& rounds, Goal goal);

/// Compares two figures that need no rounds, such as sizes.
[[nodiscard]] Row ratioRow(std::string name, std::string unit, double value, double yardstick, Goal goal);

/// Holds a figure against a goal of the same unit. Where there is a figure to read it beside (the same on an
/// idle machine, for example), that is the yardstick.
[[nodiscard]] Row plainRow(std::string name, std::string unit, double value, Goal goal,
                           std::optional<double> yardstick = {});

/// `{"rows":[{"name", "value", "yardstick", "ratio", "goal", "met", "kind", "unit", "remark"}]}`; yardstick
/// and ratio are null where there is none, kind is "at most" or "at least". Throws std::runtime_error if the
/// file cannot be written or read.
void writeRows(const std::string& path, const std::vector<Row>& rows);
[[nodiscard]] std::vector<Row> readRows(const std::string& path);

/// A figure as the table shows it, with three digits or so.
[[nodiscard]] std::string shortFigure(double figure);

/// Prints the rows as a table.
void printRows(const std::vector<Row>& rows);

} // namespace quillet::benchmarks
