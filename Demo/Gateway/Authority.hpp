#pragma once

#include "Gateway/Certificate.hpp"

#include <expected>
#include <filesystem>
#include <string>

namespace quillet::gateway {

/// The certificate authority of the folder `data`: read from "authority.pem", or made on the spot and kept
/// there, so that clients that trust it go on doing so after a restart. The file holds the private key and
/// only its owner may read it. The certificate alone goes to `certificateFile`, for clients. Says in words
/// what cannot be done.
[[nodiscard]] std::expected<Credentials, std::string>
provideAuthority(const std::filesystem::path& data, const std::filesystem::path& certificateFile);

} // namespace quillet::gateway
