#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillet::benchmarks {

/// What a run was asked for.
struct Options {
    /// Runs everything for a moment only, to see that it works. The figures are then worth nothing.
    bool quick = false;
    /// Inputs are made from it: the same seed makes the same inputs on every machine.
    std::uint32_t seed = 1;
    /// Names of the groups or curves to run; all if empty.
    std::vector<std::string> groups;
    /// Where the rows go as JSON, beside the table on standard output.
    std::optional<std::string> json;
    /// The folder that curves are written to, one file each. With it no rows are measured.
    std::optional<std::string> curves;

    /// `full` in a whole run, `quickly` in a quick one.
    [[nodiscard]] std::size_t times(std::size_t full, std::size_t quickly) const {
        return quick ? quickly : full;
    }
};

/// Reads [--quick] [--seed N] [--json FILE] [--curves FOLDER] [NAME ...]. Throws std::invalid_argument, whose
/// text says what is wrong, for anything else.
[[nodiscard]] Options optionsFrom(const std::vector<std::string>& arguments);

} // namespace quillet::benchmarks
