#pragma once

#include <expected>
#include <optional>
#include <string>
#include <string_view>

namespace quillet::gateway {

/// The three calls that the gateway answers.
enum class CallKind { associate, open, checkout };

/// "associate", "open" or "checkout": the names used on the command line, in the database and in the log.
[[nodiscard]] std::string_view name(CallKind kind);
[[nodiscard]] std::optional<CallKind> callKind(std::string_view name);

/// The parts of a request's target. Texts are percent-decoded.
struct Target {
    CallKind kind;
    std::string cart;
    std::string country;
    std::string consultant;
    std::optional<std::string> query;
};

enum class TargetError { unknown, badEncoding, dotSegment };

/// Parses a request target. Everything after "/quillet-bff/sell-out-carts/" names a cart, slashes included. A
/// path with a segment "." or "..", also a percent-encoded one, is refused: it could steer to another
/// resource.
[[nodiscard]] std::expected<Target, TargetError> parseTarget(std::string_view target);

} // namespace quillet::gateway
