#pragma once

#include "Gateway/Certificate.hpp"

#include <expected>
#include <filesystem>
#include <string>

namespace quillet::gateway {

/// The certificate authority of the folder `data`: read from "authority.pem", or created and stored there, so
/// that clients still trust it after a restart. The file holds the private key and only its owner may read
/// it. The certificate alone goes to `certificateFile`, for clients. The error is one line for a person.
[[nodiscard]] std::expected<Credentials, std::string>
provideAuthority(const std::filesystem::path& data, const std::filesystem::path& certificateFile);

} // namespace quillet::gateway
