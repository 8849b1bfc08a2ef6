#pragma once

#include "Platform/Http/URLError.hpp"

#include <optional>
#include <string_view>

namespace quillet::platform {

/// Makes libcurl ready, once in the process; it is never taken down again. The error says why no call can be
/// made: libcurl could not be made ready, which the next caller may try again, or it does not use the TLS
/// library that this module looks into. May be called on any thread.
[[nodiscard]] std::optional<URLError> initialiseCurl();

/// What is wrong with libcurl's TLS library, which it names as in "OpenSSL/3.0.17"; nothing for an OpenSSL of
/// the major version that this module was built with. Of several libraries those in brackets are not in use.
[[nodiscard]] std::optional<URLError> faultOfTlsLibrary(std::string_view sslVersion);

} // namespace quillet::platform
