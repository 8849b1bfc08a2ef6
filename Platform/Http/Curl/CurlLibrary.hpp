#pragma once

#include "Quillet/Platform/URLError.hpp"

#include <optional>
#include <string_view>

namespace quillet::platform {

/// Initialises libcurl, once in the process; it is never cleaned up. Fails if libcurl cannot be initialised,
/// which a later call may try again, or if it does not use the TLS library that this module was built with.
/// May be called on any thread.
[[nodiscard]] std::optional<URLError> initialiseCurl();

/// Why libcurl's TLS library, named as in "OpenSSL/3.0.17", cannot be used; nothing for an OpenSSL of the
/// major version that this module was built with. libcurl names libraries that are not in use in brackets.
[[nodiscard]] std::optional<URLError> faultOfTlsLibrary(std::string_view sslVersion);

} // namespace quillet::platform
