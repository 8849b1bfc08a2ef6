#pragma once

#include "Gateway/Router.hpp"

#include <cstdint>
#include <expected>
#include <filesystem>
#include <fstream>
#include <memory>
#include <mutex>
#include <string>

namespace quillet::gateway {

/// The log: one JSON object a line, appended and flushed for each completely read request before it is
/// answered, so it also counts requests whose reply is then cut, delayed or dropped. It holds the token's
/// length and never its value. Thread-safe.
class Log {
public:
    /// Opens the file for appending. The error is one line for a person.
    [[nodiscard]] static std::expected<Log, std::string> open(const std::filesystem::path& file);

    void write(std::uint64_t connection, const Request& request, const Outcome& outcome);

private:
    explicit Log(std::ofstream stream) : stream_(std::move(stream)) {}

    std::ofstream stream_;
    // A mutex cannot be moved, and `open` returns the log by value.
    std::unique_ptr<std::mutex> mutex_ = std::make_unique<std::mutex>();
};

} // namespace quillet::gateway
