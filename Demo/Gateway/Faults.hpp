#pragma once

#include "Gateway/Database.hpp"
#include "Gateway/Target.hpp"
#include "Gateway/Wire.hpp"

#include <chrono>
#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <string_view>

namespace quillet::gateway {

/// The faults that can be set. `delay`, `cut` and `close` affect the reply of a request that was carried out;
/// `status`, `malformed` and `silence` replace carrying it out.
enum class FaultKind { delay, status, malformed, cut, silence, close };

[[nodiscard]] std::string_view name(FaultKind kind);
[[nodiscard]] std::optional<FaultKind> faultKind(std::string_view name);

struct Fault {
    FaultKind kind;
    /// Milliseconds for `delay`, the status for `status`, a kind of malformed body for `malformed`; else
    /// empty.
    std::string value;
};

/// What is wrong with the value of a fault, in words; nothing if it is valid.
[[nodiscard]] std::optional<std::string> checkFaultValue(const Fault& fault);

/// Takes the fault set for this consultant and call, if there is one, and counts it down.
[[nodiscard]] std::optional<Fault> takeFault(Database& database, std::int64_t consultant, CallKind call);

/// The reply of a `status` or `malformed` fault; none for the other kinds.
[[nodiscard]] std::optional<Reply> replyInPlace(const Fault& fault, std::string_view target);

/// How long a `delay` fault holds the reply back; zero for the other kinds.
[[nodiscard]] std::chrono::milliseconds delayOf(const Fault& fault);

} // namespace quillet::gateway
