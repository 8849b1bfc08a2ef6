#pragma once

#include "Network/Errors/URLError.hpp"

#include <curl/curl.h>

namespace quillet {

/// The code that stands for one of libcurl's. `osError` is the errno of the connection, 0 for none.
[[nodiscard]] URLError::Code urlErrorCode(CURLcode code, long osError);

} // namespace quillet
