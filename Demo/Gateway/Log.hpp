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

/// The log: one JSON object a line, appended and flushed for each request that was read completely, before it
/// is answered. So it also counts requests that are then cut, held or closed. The token's value never gets
/// in, only its length. May be written from any number of threads.
class Log {
public:
    /// Opens the file to append to it; or says in words why it cannot be.
    [[nodiscard]] static std::expected<Log, std::string> open(const std::filesystem::path& file);

    void write(std::uint64_t connection, const Request& request, const Outcome& outcome);

private:
    explicit Log(std::ofstream stream) : stream_(std::move(stream)) {}

    std::ofstream stream_;
    // Held by pointer so that the log can be moved out of `open`.
    std::unique_ptr<std::mutex> mutex_ = std::make_unique<std::mutex>();
};

} // namespace quillet::gateway
