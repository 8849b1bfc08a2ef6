#pragma once

#include "Harness/Options.hpp"
#include "Harness/Row.hpp"

#include <vector>

namespace quillet::benchmarks {

/// Signing a token, beside OpenSSL's own functions on the same bytes.
[[nodiscard]] std::vector<Row> tokenRows(const Options& options);

} // namespace quillet::benchmarks
