#pragma once

#include "Quillet/Platform/URLError.hpp"

#include <curl/curl.h>

namespace quillet::platform {

/// Maps one of libcurl's codes.
[[nodiscard]] URLError::Code urlErrorCode(CURLcode code);

/// Whether the code means that the host, or its proxy, was not reached.
[[nodiscard]] bool isFailureToConnect(CURLcode code);

} // namespace quillet::platform
