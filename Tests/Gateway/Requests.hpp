#pragma once

#include "Gateway/RequestCheck.hpp"

#include <cstdint>
#include <optional>
#include <string>

namespace quillet::gateway {

/// A token with these two segments before their encoding, signed with the secret.
std::string signedToken(const std::string& header, const std::string& payload,
                        std::string_view secret = builtInIdentity().secret);
std::string goodToken();

/// The three calls as the module makes them.
Request associateRequest(std::uint64_t consultant, const std::string& cart);
Request openRequest(std::uint64_t consultant, const std::string& country = "CL");
Request checkoutRequest(std::uint64_t consultant, const std::string& country = "CL");

/// The seeded cart of one of the consultants 41051 to 41068.
std::string cartOf(std::uint64_t consultant);

/// The request with another ":method", ":target", ":body" or header of exactly this spelling. Without a value
/// the header is left out.
Request with(Request request, const std::string& part, const std::optional<std::string>& value);

} // namespace quillet::gateway
