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

/// What can be made to go wrong. `delay`, `cut` and `close` happen to a request that has been carried out;
/// `status`, `malformed` and `silence` come in place of that.
enum class FaultKind { delay, status, malformed, cut, silence, close };

[[nodiscard]] std::string_view name(FaultKind kind);
[[nodiscard]] std::optional<FaultKind> faultKind(std::string_view name);

struct Fault {
    FaultKind kind;
    /// Milliseconds for `delay`, the status for `status`, a form of nonsense for `malformed`; else empty.
    std::string value;
};

/// What is wrong with the value of a fault, in words; nothing if it will do.
[[nodiscard]] std::optional<std::string> checkFaultValue(const Fault& fault);

/// Takes the fault that waits for this consultant and call, if there is one, and counts it down.
[[nodiscard]] std::optional<Fault> takeFault(Database& database, std::int64_t consultant, CallKind call);

/// The reply of a `status` or `malformed` fault; none for the other kinds.
[[nodiscard]] std::optional<Reply> replyInPlace(const Fault& fault, std::string_view target);

/// How long a `delay` fault holds the reply back; zero for the other kinds.
[[nodiscard]] std::chrono::milliseconds delayOf(const Fault& fault);

} // namespace quillet::gateway
