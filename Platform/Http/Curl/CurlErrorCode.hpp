#pragma once

#include "Platform/Http/URLError.hpp"

#include <curl/curl.h>

namespace quillet::platform {

/// The code that stands for one of libcurl's.
[[nodiscard]] URLError::Code urlErrorCode(CURLcode code);

/// Whether the code says that the host, or the proxy before it, was not reached.
[[nodiscard]] bool isFailureToConnect(CURLcode code);

} // namespace quillet::platform
