#pragma once

#include "Gateway/Adjustment.hpp"

#include <cstdint>
#include <expected>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::gateway {

/// What the command line asks for.
struct Options {
    std::filesystem::path data;
    std::optional<std::filesystem::path> log;
    std::optional<std::filesystem::path> ca;
    std::uint16_t port = 0;
    bool reset = false;
    bool stopWithStdin = false;
    bool list = false;
    bool help = false;
    bool version = false;
    std::vector<Adjustment> adjustments;

    /// Whether the program changes or shows the data and ends, instead of serving.
    [[nodiscard]] bool isErrand() const { return list || !adjustments.empty(); }
};

/// Reads the arguments, without the program's name. The error is one line for a person. Not reentrant, since
/// getopt is not.
[[nodiscard]] std::expected<Options, std::string> parseOptions(std::span<char* const> arguments);

[[nodiscard]] std::string_view helpText();

/// The version of the project that the gateway was built with.
[[nodiscard]] std::string_view version();

} // namespace quillet::gateway
