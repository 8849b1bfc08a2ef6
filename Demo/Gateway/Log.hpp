#pragma once

#include "Gateway/Router.hpp"

#include <cstdint>
#include <expected>
#include <filesystem>
#include <memory>
#include <mutex>
#include <string>

namespace quillet::gateway {

/// The log: one JSON object a line, appended and flushed for each completely read request before it is
/// answered, so it also counts requests whose reply is then cut, delayed or dropped. It holds the token's
/// length and never its value. What a full disk cannot take is left out, by whole lines. Thread-safe.
class Log {
public:
    /// Opens the file for appending. The error is one line for a person.
    [[nodiscard]] static std::expected<Log, std::string> open(const std::filesystem::path& file);

    void write(std::uint64_t connection, const Request& request, const Outcome& outcome);

private:
    struct File;

    explicit Log(std::shared_ptr<File> file) : file_(std::move(file)) {}

    std::shared_ptr<File> file_;
};

} // namespace quillet::gateway
