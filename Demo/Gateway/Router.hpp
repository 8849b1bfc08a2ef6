#pragma once

#include "Gateway/Faults.hpp"
#include "Gateway/RequestCheck.hpp"
#include "Gateway/Wire.hpp"

#include <filesystem>
#include <optional>

namespace quillet::gateway {

/// What is to be done about one request.
struct Outcome {
    Reply reply;
    std::optional<Fault> fault;
    std::optional<std::uint64_t> consultant;

    /// Whether the reply's status goes out at all.
    [[nodiscard]] bool isAnswered() const {
        return !fault || (fault->kind != FaultKind::silence && fault->kind != FaultKind::close);
    }
};

/// Decides about requests. It reads the database in the folder `data` anew for each, so that changes made to
/// it while the gateway runs count at once. May be called from any number of threads.
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
