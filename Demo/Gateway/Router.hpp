#pragma once

#include "Gateway/Faults.hpp"
#include "Gateway/RequestCheck.hpp"
#include "Gateway/Wire.hpp"

#include <filesystem>
#include <optional>

namespace quillet::gateway {

/// How to answer one request.
struct Outcome {
    Reply reply;
    std::optional<Fault> fault;
    std::optional<std::uint64_t> consultant;

    /// Whether any part of the reply is sent.
    [[nodiscard]] bool isAnswered() const {
        return !fault || (fault->kind != FaultKind::silence && fault->kind != FaultKind::close);
    }
};

/// Decides about requests. It opens the database in the folder `data` for each request, so that changes made
/// while the gateway runs apply at once. Thread-safe.
class Router {
public:
    explicit Router(std::filesystem::path data, const Identity& identity = builtInIdentity());

    [[nodiscard]] Outcome handle(const Request& request) const;

private:
    [[nodiscard]] Outcome carryOut(const Call& call, const std::string& target) const;

    std::filesystem::path data_;
    Identity identity_;
};

} // namespace quillet::gateway
