#pragma once

#include "Gateway/Target.hpp"
#include "Gateway/Wire.hpp"

#include <array>
#include <cstdint>
#include <expected>
#include <string>
#include <string_view>

namespace quillet::gateway {

/// What a well-formed request asks for. `country` is empty for the associate call, `cart` for the others.
struct Call {
    CallKind kind;
    std::uint64_t consultant;
    std::string country;
    std::string cart;
};

/// The gateway hosts of the three environments, and the secret that tokens are signed with.
struct Identity {
    std::array<std::string_view, 3> hosts;
    std::string_view secret;
};

/// The identity that the build was configured with.
[[nodiscard]] const Identity& builtInIdentity();

/// Checks all of a request that can be judged without the database: host, path, method, token, provider,
/// headers, query and body, in this order. An error is returned as the reply to send, with a client error
/// body.
[[nodiscard]] std::expected<Call, Reply> checkRequest(const Request& request, const Identity& identity);

} // namespace quillet::gateway
